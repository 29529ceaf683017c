// zebhost.draw, its picture proxies and zebhost.compareImage.
#include "host/src/HostPicture.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "host/src/HostCanvas.h"
#include "host/src/HostNodes.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/inkwell/ImageInterface.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/cairo/CairoSupplier.h"
#include "zebui/inkwell/cairo/CairoSurface.h"
#include "zebui/ui/UI_Node.h"

namespace zebhost {
namespace {

using zebui::inkwell::CairoSurface;
using zebui::inkwell::ColorRGBA;
using zebui::inkwell::PixelRGBA;
using SurfaceP = boost::intrusive_ptr<CairoSurface>;
namespace fs = std::filesystem;

// A picture holds one reference to its surface; __gc drops it.
struct PictureProxy {
    using Object = CairoSurface;
    static constexpr const char* kMetatableName = "zebhost.Picture";
    static constexpr const char* kDisplayName = "Picture";
};

CairoSurface* checkPicture(lua_State* L, int index) {
    CairoSurface* surface =
        zeblua::utility::CheckProxyPointer<CairoSurface>(L, index, PictureProxy::kMetatableName);
    if (!surface) luaL_argerror(L, index, "empty picture");
    return surface;
}

int openPictures(lua_State* L);

enum class DrawResult { kDrawn, kNoArea, kNotWritten };

int hostDraw(lua_State* L) {
    zebui::ui::UI_Node* root = CheckNodeArgument(L, 1);
    const char* pngPath = luaL_optstring(L, 2, nullptr);
    const zebcore::geom::RectT<float> frame = root->UI_GetLocalRectF(false);
    const int width = static_cast<int>(std::min(frame.width, 32767.0f));
    const int height = static_cast<int>(std::min(frame.height, 32767.0f));
    CairoSurface** block = zeblua::utility::PushPointerProxy<CairoSurface>(
        L, nullptr, PictureProxy::kMetatableName, openPictures);
    const DrawResult result = zeblua::utility::RunNative(L, "zebhost.draw", [&] {
        const boost::intrusive_ptr<zebui::ui::UI_Node> keep(root);
        const SurfaceP surface(CanvasSupplier().MakeOffscreenCairoSurface(width, height, false));
        if (!surface) return DrawResult::kNoArea;
        intrusive_ptr_add_ref(surface.get()); /* the picture's own */
        *block = surface.get();
        zebui::inkwell::Inkwell inkwell(&CanvasSupplier(), surface.get());
        root->DeliverDraw(&inkwell);
        return pngPath && !WritePNG(*surface, pngPath) ? DrawResult::kNotWritten
                                                       : DrawResult::kDrawn;
    });
    if (result == DrawResult::kNoArea) return luaL_error(L, "zebhost.draw: the root has no area");
    if (result == DrawResult::kNotWritten)
        return luaL_error(L, "zebhost.draw: cannot write %s", pngPath);
    return 1;
}

// -- r, g, b, a = picture:pixel(x, y)
int picturePixel(lua_State* L) {
    CairoSurface* surface = checkPicture(L, 1);
    const int x = static_cast<int>(luaL_checkinteger(L, 2));
    const int y = static_cast<int>(luaL_checkinteger(L, 3));
    const PixelRGBA pixel = surface->ReadPixel(x, y);
    for (const auto channel : pixel)
        lua_pushinteger(L, channel);
    return 4;
}

// -- width, height = picture:size()
int pictureSize(lua_State* L) {
    CairoSurface* surface = checkPicture(L, 1);
    lua_pushinteger(L, surface->Width());
    lua_pushinteger(L, surface->Height());
    return 2;
}

// -- ok = picture:write(path)
int pictureWrite(lua_State* L) {
    CairoSurface* surface = checkPicture(L, 1);
    const char* path = luaL_checkstring(L, 2);
    const bool written =
        zeblua::utility::RunNative(L, "write", [&] { return WritePNG(*surface, path); });
    if (!written) return luaL_error(L, "picture:write: cannot write %s", path);
    lua_pushboolean(L, 1);
    return 1;
}

// A golden image drawn onto a transparent surface of its size, or null if it cannot be
// read. Premultiplied pixels survive the trip through a PNG unchanged, so a picture
// compares equal to the golden image written from it.
SurfaceP readGolden(const char* path) {
    std::ifstream in(path, std::ios::binary);
    const std::vector<unsigned char> bytes((std::istreambuf_iterator<char>(in)),
                                           std::istreambuf_iterator<char>());
    const auto image = CanvasSupplier().MakeImageFromPNG(bytes.data(), bytes.size());
    if (!image) return nullptr;
    const SurfaceP golden(
        CanvasSupplier().MakeOffscreenCairoSurface(image->GetWidth(), image->GetHeight(), false));
    if (golden) golden->DrawImage(*image, zebcore::geom::PointT<float>(0, 0), 1.0f);
    return golden;
}

int channelDifference(const PixelRGBA& a, const PixelRGBA& b) {
    int most = 0;
    for (size_t i = 0; i < a.size(); ++i)
        most = std::max(most, std::abs(int(a[i]) - int(b[i])));
    return most;
}

ColorRGBA colourOf(const PixelRGBA& pixel, float alphaScale) {
    return ColorRGBA(pixel[0] / 255.0f, pixel[1] / 255.0f, pixel[2] / 255.0f,
                     pixel[3] / 255.0f * alphaScale);
}

struct Comparison {
    bool same = false;
    char message[zeblua::utility::kNativeMessageSize] = "";
};

// Writes the picture and its diff next to the build; the message says where.
void writeFailureImages(CairoSurface& picture, CairoSurface* golden, const char* goldenPath,
                        int tolerance, Comparison& comparison) {
    const char* outFolder = std::getenv("ZEBHOST_GOLDEN_OUT");
    const fs::path folder = fs::absolute(outFolder && *outFolder ? outFolder : "golden-out");
    const std::string stem = fs::path(goldenPath).stem().string();
    const std::string actualPath = (folder / (stem + ".actual.png")).string();
    const std::string diffPath = (folder / (stem + ".diff.png")).string();
    WritePNG(picture, actualPath.c_str());
    const SurfaceP diff(
        CanvasSupplier().MakeOffscreenCairoSurface(picture.Width(), picture.Height(), false));
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x) {
            const PixelRGBA actual = picture.ReadPixel(x, y);
            const bool differs =
                !golden || channelDifference(actual, golden->ReadPixel(x, y)) > tolerance;
            diff->PaintRect(differs ? ColorRGBA(1, 0, 0, 1) : colourOf(actual, 0.25f),
                            zebcore::geom::RectT<float>(x, y, 1, 1));
        }
    WritePNG(*diff, diffPath.c_str());
    const size_t used = std::strlen(comparison.message);
    std::snprintf(comparison.message + used, sizeof comparison.message - used, "; wrote %s and %s",
                  actualPath.c_str(), diffPath.c_str());
}

void compare(CairoSurface& picture, const char* goldenPath, int tolerance, Comparison& comparison) {
    const char* update = std::getenv("ZEBHOST_UPDATE_GOLDEN");
    if (update && *update && std::string(update) != "0") {
        comparison.same = WritePNG(picture, goldenPath);
        if (!comparison.same)
            std::snprintf(comparison.message, sizeof comparison.message, "cannot write %s",
                          goldenPath);
        return;
    }
    const SurfaceP golden = readGolden(goldenPath);
    if (!golden) {
        std::snprintf(comparison.message, sizeof comparison.message,
                      "no golden image at %s (ZEBHOST_UPDATE_GOLDEN=1 writes it)", goldenPath);
    } else if (golden->Width() != picture.Width() || golden->Height() != picture.Height()) {
        std::snprintf(comparison.message, sizeof comparison.message,
                      "size %dx%d differs from the golden %dx%d", picture.Width(), picture.Height(),
                      golden->Width(), golden->Height());
    } else {
        int differing = 0, worst = 0, worstX = 0, worstY = 0;
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x) {
                const int difference =
                    channelDifference(picture.ReadPixel(x, y), golden->ReadPixel(x, y));
                if (difference > tolerance) ++differing;
                if (difference > worst) worst = difference, worstX = x, worstY = y;
            }
        comparison.same = differing == 0;
        if (comparison.same) return;
        std::snprintf(comparison.message, sizeof comparison.message,
                      "%d pixels differ from %s by more than %d (most: %d at %d,%d)", differing,
                      goldenPath, tolerance, worst, worstX, worstY);
    }
    writeFailureImages(picture, golden.get(), goldenPath, tolerance, comparison);
}

// -- ok, message = zebhost.compareImage(picture, goldenPath [, tolerance])
int hostCompareImage(lua_State* L) {
    CairoSurface* picture = checkPicture(L, 1);
    const char* goldenPath = luaL_checkstring(L, 2);
    const lua_Integer tolerance = luaL_optinteger(L, 3, 0);
    luaL_argcheck(L, tolerance >= 0 && tolerance <= 255, 3, "tolerance out of range (0 to 255)");
    Comparison comparison;
    zeblua::utility::RunNative(L, "zebhost.compareImage", [&] {
        compare(*picture, goldenPath, static_cast<int>(tolerance), comparison);
        return 0;
    });
    lua_pushboolean(L, comparison.same);
    if (comparison.same) return 1;
    lua_pushstring(L, comparison.message);
    return 2;
}

const luaL_Reg kPictureMethods[] = {
    {"__gc", zeblua::utility::ReleaseReferenceGC<PictureProxy>},
    {"__tostring", zeblua::utility::HeldObject2string<PictureProxy>},
    {"pixel", picturePixel},
    {"size", pictureSize},
    {"write", pictureWrite},
    {nullptr, nullptr},
};

const luaL_Reg kPictureFunctions[] = {
    {"draw", hostDraw},
    {"compareImage", hostCompareImage},
    {nullptr, nullptr},
};

// The picture metatable and the functions; leaves the metatable and zebhost.
int openPictures(lua_State* L) {
    zeblua::utility::RegisterClassModule(L, PictureProxy::kMetatableName, kPictureMethods,
                                         "zebhost", kPictureFunctions);
    return 1;
}

}  // namespace

void OpenHostPicture(lua_State* L) {
    openPictures(L);
    lua_pop(L, 2);
}

}  // namespace zebhost
