// zebSurfaceInterface: drawing commands of surface proxies, checked against their scope.
#include "zeblua/inkwell/src/LuaSurfaceInterface.h"

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zebcore/geom/GeomConvert.h"
#include "zebcore/geom/Geometry.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaImageInterface.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/inkwell/src/LuaPathInterface.h"
#include "zeblua/inkwell/src/LuaPenInterface.h"
#include "zeblua/inkwell/src/LuaShaderInterface.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/inkwell/BrushP.h"
#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/FontP.h"
#include "zebui/inkwell/ImageInterface.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/InkwellTypes.h"
#include "zebui/inkwell/PathP.h"
#include "zebui/inkwell/PenInterface.h"
#include "zebui/inkwell/PenP.h"
#include "zebui/inkwell/ShaderInterface.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/ThemeFonts.h"
#include "zebui/utils/DrawUtils.h"

namespace zeblua {
namespace inkwell {

const char* const kZebLuaSurfaceClassName = "zebSurfaceInterface";
const char* const kZebLuaSurfaceMetaTableName = "zeblua.zebSurfaceInterface";

namespace {

using zebcore::geom::MatrixT;
using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zebui::inkwell::BrushInterface;
using zebui::inkwell::BrushP;
using zebui::inkwell::ColorRGBA;
using zebui::inkwell::FontInterface;
using zebui::inkwell::FontP;
using zebui::inkwell::ImageInterface;
using zebui::inkwell::Inkwell;
using zebui::inkwell::PathInterface;
using zebui::inkwell::PathP;
using zebui::inkwell::PenInterface;
using zebui::inkwell::PenP;
using zebui::inkwell::ShaderInterface;
using zebui::inkwell::SurfaceInterface;

// Every method starts here: the record at 1, or null after the report once it has ended.
// The table readers run __index metamethods, which are script code and may release the
// surface or an object argument on the way; so a method that reads a table looks at them
// again once every argument is read, with the same reports, before it draws.
InkwellProxy* liveSurface(lua_State* L) {
    InkwellProxy* proxy = zeblua_checkSurface(L, 1);
    return SurfaceInScope(proxy) ? proxy : nullptr;
}

// The path holder at index, or null after the report when the script released it.
const PathP* livePath(lua_State* L, int index) {
    const PathP* path = *zeblua_checkPathInterface(L, index);
    ZEB_ASSERT_MSG(path != nullptr, "Attempting to use a released PathInterface");
    return path;
}

// The image at index, or null after the report when the script released it.
const ImageInterface* liveImage(lua_State* L, int index) {
    const ImageInterface* image = *zeblua_checkImage(L, index);
    ZEB_ASSERT_MSG(image != nullptr, "Attempting to use an out-of-scope ImageInterface");
    return image;
}

// Optional arguments go by count, not by type: a nil standing in the place is present
// and fails the check.
lua_Number optionalNumber(lua_State* L, int index, lua_Number fallback) {
    return lua_gettop(L) < index ? fallback : luaL_checknumber(L, index);
}

lua_Integer optionalInteger(lua_State* L, int index, lua_Integer fallback) {
    return lua_gettop(L) < index ? fallback : luaL_checkinteger(L, index);
}

// An optional fill flag: true unless the integer given is 0.
bool fillFlag(lua_State* L, int index) {
    return optionalInteger(L, index, 1) != 0;
}

// The default text size, for a size argument left out.
lua_Number defaultTextSize() {
    return zebui::controls::UI_ControlView::DefaultTextSize();
}

// A font of the theme's main family: scripts choose only its size.
FontP defaultFont(const InkwellProxy& proxy, float size) {
    const zebcore::UTF16String family = zebui::ui::GetFontName(0);
    return FontP(DrawingSupplierOf(&proxy), reinterpret_cast<const unsigned short*>(family.c_str()),
                 nullptr, size);
}

// An Inkwell over the proxy's own surface for the toolkit's drawing helpers: the proxy's
// Inkwell may be missing (an offscreen surface before NewInkwell), and the supplier it
// would lend is the one DrawingSupplierOf finds first.
Inkwell drawingInkwell(const InkwellProxy& proxy) {
    return Inkwell(DrawingSupplierOf(&proxy), proxy.surface);
}

// The C++ halves of the path methods: every argument has been read, so their holders are
// free to live in the frame; those that make holders run under RunNative, which stops
// whatever they throw. Each does nothing when a holder came out empty (reported).
void strokeWithPen(const InkwellProxy& proxy, const PathP& path, const PenInterface& pen) {
    const PathInterface* pathObject = path.operator->();
    if (pathObject) proxy.surface->StrokePath(pen, *pathObject);
}

void strokeWithColour(const InkwellProxy& proxy, const PathP& path, const ColorRGBA& colour,
                      float width) {
    const PenP pen(DrawingSupplierOf(&proxy), colour, width);
    const PenInterface* penObject = pen.operator->();
    if (penObject) strokeWithPen(proxy, path, *penObject);
}

void fillPath(const InkwellProxy& proxy, const PathP& path, const ColorRGBA& colour, bool flag) {
    const BrushP brush(DrawingSupplierOf(&proxy), colour);
    const auto* brushObject = brush.operator->();
    const PathInterface* pathObject = path.operator->();
    if (brushObject && pathObject) proxy.surface->FillPath(*brushObject, *pathObject, flag);
}

void shadePath(const InkwellProxy& proxy, const PathP& path, const ShaderInterface& shader,
               bool flag) {
    const PathInterface* pathObject = path.operator->();
    if (pathObject) proxy.surface->ShadePath(shader, *pathObject, flag);
}

void clipToPath(const InkwellProxy& proxy, const PathP& path, bool flag) {
    const PathInterface* pathObject = path.operator->();
    if (pathObject) proxy.surface->Clip(*pathObject, flag);
}

// Brush and font live for this one call, under RunNative as the other helpers that make
// holders or text. The surface takes truncation before width.
void drawString(const InkwellProxy& proxy, const char* text, const PointT<float>& point,
                const ColorRGBA& colour, lua_Integer alignment, float fontSize, float width,
                lua_Integer truncation) {
    const zebcore::UTF16String units = zebcore::utility::UTF8to16(text);
    const BrushP brush(DrawingSupplierOf(&proxy), colour);
    const FontP font = defaultFont(proxy, fontSize);
    const BrushInterface* brushObject = brush.operator->();
    const FontInterface* fontObject = font.operator->();
    if (brushObject && fontObject)
        proxy.surface->DrawString(*brushObject, *fontObject, units, point,
                                  static_cast<zebui::inkwell::TextAlignment>(alignment),
                                  static_cast<zebui::inkwell::TextTruncation>(truncation), width);
}

// 0 when no font could be made (reported by its holder).
float measureString(const InkwellProxy& proxy, const char* text, float fontSize) {
    const FontP font = defaultFont(proxy, fontSize);
    const FontInterface* fontObject = font.operator->();
    return fontObject ? proxy.surface->MeasureStringWidth(*fontObject,
                                                          zebcore::utility::UTF8to16(text), -1)
                      : 0.0f;
}

void drawOutline(const InkwellProxy& proxy, const RectT<float>& rect, const ColorRGBA& colour,
                 float cornerRadius, float lineWidth) {
    Inkwell inkwell = drawingInkwell(proxy);
    zebui::utils::DrawOutline(&inkwell, rect, colour, cornerRadius, zebui::utils::kAllCorners,
                              lineWidth);
}

void drawRoundedFill(const InkwellProxy& proxy, const RectT<float>& rect, const ColorRGBA& colour,
                     float cornerRadius) {
    Inkwell inkwell = drawingInkwell(proxy);
    zebui::utils::DrawRoundedFill(&inkwell, rect, colour, cornerRadius, zebui::utils::kAllCorners);
}

// -- surface:Release()
// A scoped surface only ends; an offscreen one also drops its reference. The second
// Release reports like any use of an ended surface.
int surfaceRelease(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    SurfaceInterface* surface = proxy->surface;
    InvalidateProxy(proxy);
    if (proxy->owned) intrusive_ptr_release(surface);
    return 0;
}

// -- "zebSurfaceInterface(%p)" of the surface, null once ended
int surface2string(lua_State* L) {
    return utility::PushProxyString(L, kZebLuaSurfaceClassName, zeblua_checkSurface(L, 1)->surface);
}

// -- surface:PushStateStack()
int surfacePushStateStack(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    proxy->surface->PushStateStack();
    ++proxy->pushedStates;
    return 0;
}

// -- surface:PopStateStack()
// Pops only what this surface's PushStateStack pushed: the state below is its scope's.
int surfacePopStateStack(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    ZEB_ASSERT_MSG(proxy->pushedStates > 0, "PopStateStack without PushStateStack");
    if (proxy->pushedStates == 0) return 0;
    --proxy->pushedStates;
    proxy->surface->PopStateStack();
    return 0;
}

// -- surface:DrawString(text, x, y, colour [, alignment = 0 [, fontSize [, width = 0
//                       [, truncation = 0]]]])
// The text ends at its first zero byte; x and y are integers. The family is the theme's,
// never the script's.
int surfaceDrawString(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const char* text = luaL_checkstring(L, 2);
    const lua_Integer x = luaL_checkinteger(L, 3);
    const lua_Integer y = luaL_checkinteger(L, 4);
    ColorRGBA colour;
    GetColorRGBAFromLua(L, 5, colour);
    const lua_Integer alignment = optionalInteger(L, 6, zebui::inkwell::kTextAlignment_Default);
    const lua_Number fontSize = optionalNumber(L, 7, defaultTextSize());
    const lua_Number width = optionalNumber(L, 8, 0);
    const lua_Integer truncation = optionalInteger(L, 9, zebui::inkwell::kTextTruncation_None);
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    return utility::RunNative(L, "DrawString", [&] {
        drawString(*proxy, text, PointT<float>(static_cast<float>(x), static_cast<float>(y)),
                   colour, alignment, static_cast<float>(fontSize), static_cast<float>(width),
                   truncation);
        return 0;
    });
}

// -- width = surface:MeasureStringWidth(text [, fontSize])
int surfaceMeasureStringWidth(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const char* text = luaL_checkstring(L, 2);
    const lua_Number fontSize = optionalNumber(L, 3, defaultTextSize());
    const float width = utility::RunNative(L, "MeasureStringWidth", [&] {
        return measureString(*proxy, text, static_cast<float>(fontSize));
    });
    lua_pushnumber(L, width);
    return 1;
}

// The rect at argument 2 and the colour at argument 3, read in that order. The methods that
// call it are closures over the field names (see kRectAndColourMethods).
void readRectAndColour(lua_State* L, RectT<float>& rect, ColorRGBA& colour) {
    GetRectAndColorFromUpvalues(L, 2, 3, rect, colour);
}

// -- surface:PaintRect(rect, colour)
int surfacePaintRect(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    RectT<float> rect;
    ColorRGBA colour;
    readRectAndColour(L, rect, colour);
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    proxy->surface->PaintRect(colour, rect);
    return 0;
}

// -- surface:DrawOutline(rect, colour [, cornerRadius = 0 [, lineWidth = 1]])
// All four corners rounded; the line lies inside the rectangle.
int surfaceDrawOutline(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    RectT<float> rect;
    ColorRGBA colour;
    readRectAndColour(L, rect, colour);
    const lua_Number cornerRadius = optionalNumber(L, 4, 0);
    const lua_Number lineWidth = optionalNumber(L, 5, 1.0);
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    return utility::RunNative(L, "DrawOutline", [&] {
        drawOutline(*proxy, rect, colour, static_cast<float>(cornerRadius),
                    static_cast<float>(lineWidth));
        return 0;
    });
}

// -- surface:DrawRoundedFill(rect, colour, cornerRadius)
int surfaceDrawRoundedFill(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    RectT<float> rect;
    ColorRGBA colour;
    readRectAndColour(L, rect, colour);
    const lua_Number cornerRadius = luaL_checknumber(L, 4);
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    return utility::RunNative(L, "DrawRoundedFill", [&] {
        drawRoundedFill(*proxy, rect, colour, static_cast<float>(cornerRadius));
        return 0;
    });
}

// -- surface:StrokePath(path, pen)  or  surface:StrokePath(path, colour, width)
// The form goes by count: exactly three values, counting the surface, is the pen form.
int surfaceStrokePath(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const PathP* path = livePath(L, 2);
    if (!path) return 0;
    if (lua_gettop(L) == 3) {
        const PenInterface* pen = *zeblua_checkPenInterface(L, 3);
        if (PenInScope(pen)) strokeWithPen(*proxy, *path, *pen);
        return 0;
    }
    ColorRGBA colour;
    GetColorRGBAFromLua(L, 3, colour);
    const float width = static_cast<float>(luaL_checknumber(L, 4));
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    path = livePath(L, 2);
    if (!path) return 0;
    return utility::RunNative(L, "StrokePath", [&] {
        strokeWithColour(*proxy, *path, colour, width);
        return 0;
    });
}

// -- surface:FillPath(path, colour [, flag = 1])
int surfaceFillPath(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const PathP* path = livePath(L, 2);
    if (!path) return 0;
    ColorRGBA colour;
    GetColorRGBAFromLua(L, 3, colour);
    const bool flag = fillFlag(L, 4);
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    path = livePath(L, 2);
    if (!path) return 0;
    return utility::RunNative(L, "FillPath", [&] {
        fillPath(*proxy, *path, colour, flag);
        return 0;
    });
}

// -- surface:ShadePath(path, shader [, flag = 1])
int surfaceShadePath(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const PathP* path = livePath(L, 2);
    if (!path) return 0;
    const ShaderInterface* shader = *zeblua_checkShaderInterface(L, 3);
    ZEB_ASSERT_MSG(shader != nullptr, "Attempting to use a released ShaderInterface");
    if (!shader) return 0;
    const bool flag = fillFlag(L, 4);
    shadePath(*proxy, *path, *shader, flag);
    return 0;
}

// -- surface:Transform(matrix)
// Concatenated with the present transform, until the state is popped.
int surfaceTransform(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    MatrixT<float> matrix;
    GetMatrixF32FromLua(L, 2, matrix);
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    proxy->surface->Transform(matrix);
    return 0;
}

// -- matrix = surface:GetTransform()
int surfaceGetTransform(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    MatrixT<float> matrix;
    proxy->surface->GetTransform(matrix);
    return PushMatrixF32ToLua(L, matrix);
}

// -- surface:Clip(path [, flag = 1])
int surfaceClip(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const PathP* path = livePath(L, 2);
    if (!path) return 0;
    const bool flag = fillFlag(L, 3);
    clipToPath(*proxy, *path, flag);
    return 0;
}

// -- rect = surface:GetClipBounds()
// The surface's whole-unit rectangle, element by element as floats.
int surfaceGetClipBounds(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const RectT<int> bounds = proxy->surface->GetClipBounds();
    return PushRectF32ToLua(
        L, RectT<float>(static_cast<float>(bounds.left), static_cast<float>(bounds.top),
                        static_cast<float>(bounds.width), static_cast<float>(bounds.height)));
}

// -- n = surface:IsWithinClipBounds(rect)
// The number 1 or 0, not a boolean: 0 is true in Lua, so scripts compare with 1.
int surfaceIsWithinClipBounds(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    RectT<float> rect;
    GetRectF32FromLua(L, 2, rect);
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    const RectT<int> outward =
        zebcore::geom::ConvertRect<RectT<int>>(rect, zebcore::geom::kRectRound_OUT);
    lua_pushinteger(L, proxy->surface->IsWithinClipBounds(outward) ? 1 : 0);
    return 1;
}

// -- surface:DrawImage(image, point [, opacity = 1])
int surfaceDrawImage(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const ImageInterface* image = liveImage(L, 2);
    if (!image) return 0;
    PointT<float> point;
    GetPointF32FromLua(L, 3, point);
    const lua_Number opacity = optionalNumber(L, 4, 1.0);
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    image = liveImage(L, 2);
    if (!image) return 0;
    proxy->surface->DrawImage(*image, point, static_cast<float>(opacity));
    return 0;
}

// -- surface:DrawImage2(image, destRect [, srcRect [, opacity = 1]])
// Without a source rectangle the whole image is drawn; an explicit nil is no rectangle
// left out but a wrong argument.
int surfaceDrawImage2(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const ImageInterface* image = liveImage(L, 2);
    if (!image) return 0;
    RectT<float> destRect;
    RectT<float> srcRect;
    GetRectF32FromLua(L, 3, destRect);
    const bool hasSource = lua_gettop(L) >= 4;
    if (hasSource) GetRectF32FromLua(L, 4, srcRect);
    const lua_Number opacity = optionalNumber(L, 5, 1.0);
    if (!SurfaceInScope(proxy)) return 0; /* a field's __index may have released it */
    image = liveImage(L, 2);
    if (!image) return 0;
    proxy->surface->DrawImage2(DrawingSupplierOf(proxy), *image, destRect,
                               hasSource ? &srcRect : nullptr, static_cast<float>(opacity));
    return 0;
}

// -- surface:SetAntiAliasPolicy(policy)
// Exactly 0, 1 or 2 is passed on; any other number changes nothing, silently.
int surfaceSetAntiAliasPolicy(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    const lua_Number policy = luaL_checknumber(L, 2);
    if (policy == zebui::inkwell::kAntiAliasPolicy_None ||
        policy == zebui::inkwell::kAntiAliasPolicy_Med ||
        policy == zebui::inkwell::kAntiAliasPolicy_High)
        proxy->surface->SetAntiAliasPolicy(static_cast<int>(policy));
    return 0;
}

// -- policy = surface:GetAntiAliasPolicy()
int surfaceGetAntiAliasPolicy(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    lua_pushinteger(L, proxy->surface->GetAntiAliasPolicy());
    return 1;
}

// -- image = surface:GetSurfaceImage()
// A copy of the present pixels; the image proxy holds its own reference. The proxy comes
// first, empty: a Lua memory error in its push must not find the image's reference in a
// counted pointer of this frame, whose release the longjmp would skip.
int surfaceGetSurfaceImage(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (!proxy) return 0;
    newProxyFromImage(L, nullptr);
    *static_cast<ImageInterface**>(lua_touserdata(L, -1)) =
        proxy->surface->GetSurfaceImage().detach();
    return 1;
}

// -- surface:Flush()
int surfaceFlush(lua_State* L) {
    InkwellProxy* proxy = liveSurface(L);
    if (proxy) proxy->surface->Flush();
    return 0;
}

const luaL_Reg kSurfaceFunctions[] = {{nullptr, nullptr}};

const luaL_Reg kSurfaceMethods[] = {
    {"__gc", utility::NothingGC},  // a scoped surface is the toolkit's; an offscreen one lives on
    {"__tostring", surface2string},
    {"Release", surfaceRelease},
    {"PushStateStack", surfacePushStateStack},
    {"PopStateStack", surfacePopStateStack},
    {"DrawString", surfaceDrawString},
    {"MeasureStringWidth", surfaceMeasureStringWidth},
    {"StrokePath", surfaceStrokePath},
    {"FillPath", surfaceFillPath},
    {"ShadePath", surfaceShadePath},
    {"Transform", surfaceTransform},
    {"GetTransform", surfaceGetTransform},
    {"Clip", surfaceClip},
    {"GetClipBounds", surfaceGetClipBounds},
    {"IsWithinClipBounds", surfaceIsWithinClipBounds},
    {"DrawImage", surfaceDrawImage},
    {"DrawImage2", surfaceDrawImage2},
    {"SetAntiAliasPolicy", surfaceSetAntiAliasPolicy},
    {"GetAntiAliasPolicy", surfaceGetAntiAliasPolicy},
    {"GetSurfaceImage", surfaceGetSurfaceImage},
    {"Flush", surfaceFlush},
    {nullptr, nullptr},
};

// The methods that read a rect and a colour on every call: luaopen adds them to the
// metatable as closures that keep the field names as upvalues.
const luaL_Reg kRectAndColourMethods[] = {
    {"PaintRect", surfacePaintRect},
    {"DrawOutline", surfaceDrawOutline},
    {"DrawRoundedFill", surfaceDrawRoundedFill},
    {nullptr, nullptr},
};

}  // namespace

InkwellProxy* zeblua_checkSurface(lua_State* L, int index) {
    void* block = CheckDrawingProxy(L, index, DrawingKind::kSurface);
    // A full userdata is its record; only a light one, a bare address, is looked up.
    if (lua_type(L, index) == LUA_TLIGHTUSERDATA) return SurfaceRecordAt(L, index);
    return static_cast<InkwellProxy*>(block);
}

bool SurfaceInScope(const InkwellProxy* proxy) {
    ZEB_ASSERT_MSG(proxy->surface != nullptr, "Attempting to use an out-of-scope SurfaceInterface");
    return proxy->surface != nullptr;
}

int luaopen_zebSurfaceInterface(lua_State* L) {
    using utility::SetIntegerConstant;
    namespace ink = zebui::inkwell;
    utility::RegisterClassModule(L, kZebLuaSurfaceMetaTableName, kSurfaceMethods,
                                 kZebLuaSurfaceClassName, kSurfaceFunctions); /* mt, library */
    for (const luaL_Reg* method = kRectAndColourMethods; method->name; ++method) {
        lua_pushcclosure(L, method->func, PushRectAndColorKeys(L));
        lua_setfield(L, -3, method->name);
    }
    SetIntegerConstant(L, "kAntiAliasPolicy_None", ink::kAntiAliasPolicy_None);
    SetIntegerConstant(L, "kAntiAliasPolicy_Med", ink::kAntiAliasPolicy_Med);
    SetIntegerConstant(L, "kAntiAliasPolicy_High", ink::kAntiAliasPolicy_High);
    SetIntegerConstant(L, "kTextAlignment_Left", ink::kTextAlignment_Left);
    SetIntegerConstant(L, "kTextAlignment_Center", ink::kTextAlignment_Center);
    SetIntegerConstant(L, "kTextAlignment_Right", ink::kTextAlignment_Right);
    SetIntegerConstant(L, "kTextAlignment_Default", ink::kTextAlignment_Default);
    SetIntegerConstant(L, "kTextTruncation_None", ink::kTextTruncation_None);
    SetIntegerConstant(L, "kTextTruncation_End", ink::kTextTruncation_End);
    SetIntegerConstant(L, "kTextTruncation_EndEllipsis", ink::kTextTruncation_EndEllipsis);
    SetIntegerConstant(L, "kTextTruncation_PathEllipsis", ink::kTextTruncation_PathEllipsis);
    return 1;
}

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebSurfaceInterface(lua_State* L) {
    return zeblua::inkwell::luaopen_zebSurfaceInterface(L);
}
