// zebUIResources and the image provider: which accessor serves an image, cursors, and the
// order in which picture controls' state images are looked for.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <boost/intrusive_ptr.hpp>
#include <gmock/gmock.h>
#include <lua.hpp>

#include "tests/DrawingTestFixture.h"
#include "vex/app/App.h"
#include "vex/utility/Resources.h"
#include "zebcore/debug/Debug.h"
#include "zebcore/filesupport/CommonDirs.h"
#include "zeblua/inkwell/src/LuaImageInterface.h"
#include "zeblua/inkwell/src/LuaSupplier.h"
#include "zeblua/ui/src/ImageProvider.h"
#include "zeblua/ui/src/LuaResources.h"
#include "zebui/controls/UI_Button.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_PictureSupplyMessage.h"
#include "zebui/controls/UI_PictureTextButton.h"
#include "zebui/controls/UI_StaticImage.h"
#include "zebui/ui/IconType.h"
#include "zebui/ui/MessageFunctionAdapter.h"
#include "zebui/ui/UI_NodeManager.h"
#include "zebui/utility/Cursor.h"
#include "zebui/utility/InkwellImageResourceCache.h"
#include "zebui/utility/ResourceManager.h"

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using uit::ImageProvider;
using zebui::controls::UI_PictureSupplyMessage;
using zebui::utility::DisplayedCursor;
using zebui::utility::InkwellImageResourceCache;

const char* const kImageEnded = "Attempting to use an out-of-scope ImageInterface";

InkwellImageResourceCache* toolkitCache() {
    return zebui::ui::UI_NodeManager::Get(false)->GetInkwellImageResourceCache();
}
InkwellImageResourceCache* appCache() {
    return vex::app::App::GetApp()->GetInkwellImageCache();
}

// A resources folder of its own per test. Images tell themselves apart by their size.
class UIResourcesTest : public DrawingTest {
protected:
    void SetUp() override {
        DrawingTest::SetUp();
        mRoot = fs::temp_directory_path() /
                ("zeblua-uiresources-" + std::to_string(getpid()) + "-" +
                 ::testing::UnitTest::GetInstance()->current_test_info()->name());
        writeImage("zebui", "marker", 3);
        writeImage("vex", "marker", 4);
        writeImage("", "marker", 2);
        zebcore::filesupport::commondirs::SetResourcesDir(
            zebcore::filesupport::Dir(zebcore::utility::UTF8to16(mRoot.string())));
        for (InkwellImageResourceCache* cache : caches()) {
            cache->Clear();
            cache->ClearLookupLog();
            cache->SetLookupLogEnabled(true);
        }
        runLua("require 'zeblua.zebUIResources'");
        zeblua::inkwell::PushSupplierToLua(
            L, zebui::ui::UI_NodeManager::Get(false)->GetDefaultSupplier());
        lua_setglobal(L, "supplier");
    }

    void TearDown() override {
        vex::app::App::SetAppAvailable(true);
        zebui::ui::SetIconType(0);
        DrawingTest::TearDown();
        for (InkwellImageResourceCache* cache : caches()) {
            cache->Clear();
            cache->SetLookupLogEnabled(false);
            cache->ClearLookupLog();
        }
        zebcore::filesupport::commondirs::SetResourcesDir(
            zebcore::filesupport::Dir(zebcore::utility::UTF8to16(ZEBHOST_DEFAULT_RESOURCES)));
        std::error_code ignored;
        fs::remove_all(mRoot, ignored);
    }

    static std::vector<InkwellImageResourceCache*> caches() {
        return {toolkitCache(), vex::utility::GetInkwellImageCache(), appCache()};
    }

    // A size x size PNG, <root>/<part>/png/<name>.png.
    void writeImage(const std::string& part, const std::string& name, int size) {
        const fs::path folder = mRoot / part / "png";
        fs::create_directories(folder);
        const boost::intrusive_ptr<zebui::inkwell::CairoSurface> surface(
            mSupplier.MakeOffscreenCairoSurface(size, size, false));
        surface->PaintRect(zebui::inkwell::ColorRGBA(0, 1, 0),
                           zebcore::geom::RectT<float>(0, 0, size, size));
        ASSERT_TRUE(surface->WritePNG((folder / (name + ".png")).string()));
    }

    // The image a picture control of that base name gets for the flags, and the names
    // looked for on the way.
    int provide(zebui::ui::UI_Node* control, unsigned flags,
                void (ImageProvider::*form)(UI_PictureSupplyMessage*),
                std::vector<std::string>& tried) {
        appCache()->ClearLookupLog();
        UI_PictureSupplyMessage message(control, flags);
        (ImageProvider::GetInstance()->*form)(&message);
        tried = appCache()->LookupLog();
        return message.GetImage() ? message.GetImage()->GetWidth() : 0;
    }

    fs::path mRoot;
};

TEST_F(UIResourcesTest, EachAccessorServesImagesFromItsOwnResources) {
    const struct {
        const char* accessor;
        int width;
        InkwellImageResourceCache* cache;
    } accessors[] = {
        {"zebui_resources", 3, toolkitCache()},
        {"vex_resources", 4, vex::utility::GetInkwellImageCache()},
        {"app_resources", 2, appCache()},
    };
    for (const auto& a : accessors) {
        for (InkwellImageResourceCache* cache : caches())
            cache->ClearLookupLog();
        const std::string name = a.accessor;
        EXPECT_EQ(luaValue("zebUIResources." + name), name);
        runLua("res = zebUIResources.getResources(zebUIResources." + name + ")");
        EXPECT_EQ(luaValue("res:getImage(supplier, 'marker'):GetWidth()"), std::to_string(a.width))
            << name;
        // Decoded once: the second request gets the very same image.
        EXPECT_EQ(luaValue("tostring(res:getImage(supplier, 'marker')) == "
                           "tostring(res:getImage(supplier, 'marker'))"),
                  "true");
        for (InkwellImageResourceCache* cache : caches())
            EXPECT_EQ(cache->LookupLog().size(), cache == a.cache ? 3u : 0u) << name;
        EXPECT_EQ(luaValue("tostring(res)").find("zebUIResources(0x"), 0u);
    }
    // Each call makes a new value; none ends.
    EXPECT_EQ(luaValue("zebUIResources.getResources('vex_resources') == "
                       "zebUIResources.getResources('vex_resources')"),
              "false");
    runLua("res = nil");
    collectGarbage();

    vex::app::App::SetAppAvailable(false);
    EXPECT_EQ(resultCount("zebUIResources.getResources('app_resources')"), 0);
    vex::app::App::SetAppAvailable(true);
    EXPECT_EQ(resultCount("zebUIResources.getResources('app_resources')"), 1);
}

TEST_F(UIResourcesTest, ScriptMistakesAndMissingImagesAreLuaErrors) {
    runLua("res = zebUIResources.getResources('app_resources')");
    const struct {
        const char* code;
        const char* error;
    } cases[] = {
        {"zebUIResources.getResources('bundle_resources')",
         "resource accessor 'bundle_resources' not found"},
        {"zebUIResources.getResources()", "bad argument #1"},
        {"res:getImage(supplier, 'missing')", "image 'missing' not found"},
        {"res:getImage(supplier, 'sub/marker')", "image 'sub/marker' not found"},
        {"res:getImage('a supplier', 'marker')", "zeblua.inkwell.zebSupplierInterface expected"},
        {"res:getImage(supplier)", "string expected, got no value"},
        {"res.getImage(supplier, supplier, 'marker')", "zeblua.zebUIResources expected"},
    };
    for (const auto& c : cases) {
        const std::string error = luaError(c.code);
        EXPECT_NE(error.find(c.error), std::string::npos) << c.code << ": " << error;
    }
    // A miss is not remembered: an image that arrives later is found.
    writeImage("", "missing", 5);
    EXPECT_EQ(luaValue("res:getImage(supplier, 'missing'):GetWidth()"), "5");

    // A resources value made by native code with nothing behind it finds no image.
    zeblua::ui::PushResourcesToLua(L, nullptr, nullptr);
    lua_setglobal(L, "empty");
    EXPECT_NE(luaError("empty:getImage(supplier, 'marker')").find("image 'marker' not found"),
              std::string::npos);
    EXPECT_EQ(resultCount("empty:DisplayCursor(1)"), 0);
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
}

TEST_F(UIResourcesTest, CursorsComeFromImagesAndFromTheManagerAsked) {
    runLua(R"(
        image = zebUIResources.getResources('app_resources'):getImage(supplier, 'marker')
        zebUIResources.DisplayCursorFromImage(image)
    )");
    lua_getglobal(L, "image");
    const zebui::inkwell::ImageInterface* image = *zeblua::inkwell::zeblua_checkImage(L, -1);
    lua_pop(L, 1);
    const DisplayedCursor& cursor = zebui::utility::GetDisplayedCursor();
    EXPECT_EQ(cursor.source, DisplayedCursor::kImageCursor);
    EXPECT_EQ(cursor.image.get(), image);
    EXPECT_EQ(cursor.hotX, -1);
    EXPECT_EQ(cursor.hotY, -1);

    runLua("zebUIResources.DisplayCursorFromImage(image, 3, 70000)");  // 16 bits
    EXPECT_EQ(cursor.hotX, 3);
    EXPECT_EQ(cursor.hotY, 4464);
    EXPECT_NE(luaError("zebUIResources.DisplayCursorFromImage(image, nil)").find("bad argument #2"),
              std::string::npos);

    // The cursor holds the image after the script and the cache let go of it.
    runLua("image:Release()");
    appCache()->Clear();
    EXPECT_EQ(cursor.image->GetWidth(), 2);
    EXPECT_EQ(resultCount("zebUIResources.DisplayCursorFromImage(image, 1, 1)"), 0);
    EXPECT_EQ(reportCount(kImageEnded), 1);
    EXPECT_EQ(cursor.hotX, 3);

    runLua("zebUIResources.getResources('vex_resources'):DisplayCursor(7)");
    EXPECT_EQ(cursor.source, DisplayedCursor::kResourceCursor);
    EXPECT_EQ(cursor.cursorID, 7);
    EXPECT_EQ(cursor.manager, vex::utility::GetResourceManager());
    EXPECT_EQ(cursor.image, nullptr);
}

TEST_F(UIResourcesTest, TheProviderTriesStateNamesInItsFixedOrder) {
    writeImage("", "plain", 5);
    writeImage("", "pic_P_D", 6);
    writeImage("", "pic_N", 7);
    const auto all = &ImageProvider::ProvideImage;
    const auto noRollover = &ImageProvider::ProvideImage_NoRollover;
    const auto noDark = &ImageProvider::ProvideImage_NoDark;
    const auto neither = &ImageProvider::ProvideImage_NoDark_NoRollover;
    using Names = std::vector<std::string>;
    const struct {
        const char* base;
        unsigned flags;
        int iconType;
        void (ImageProvider::*form)(UI_PictureSupplyMessage*);
        Names tried;
        int found;  // the width of the image handed over, 0 for none
    } cases[] = {
        {"plain", 1, 1, all, {"plain_P_D", "plain_R_D", "plain_N_D", "plain_N", "plain"}, 5},
        {"plain", 2, 1, all, {"plain_R_D", "plain_N_D", "plain_N", "plain"}, 5},
        // Mask 4 wins over mask 1; without dark, tries 3 and 4 are one name.
        {"plain", 5, 1, noDark, {"plain_N", "plain_R", "plain_N", "plain_N", "plain"}, 5},
        {"plain", 2, 1, noRollover, {"plain_N_D", "plain_N_D", "plain_N", "plain"}, 5},
        // No dark name unless the icon type is 1.
        {"plain", 2, 2, all, {"plain_R", "plain_N", "plain_N", "plain"}, 5},
        {"plain", 0, 0, neither, {"plain_N", "plain_N", "plain_N", "plain"}, 5},
        {"pic", 1, 1, all, {"pic_P_D"}, 6},
        {"pic", 3, 0, all, {"pic_P", "pic_R", "pic_N"}, 7},
        {"pic", 1, 1, noDark, {"pic_P", "pic_R", "pic_N"}, 7},
        {"none", 0, 0, all, {"none_N", "none_N", "none_N", "none"}, 0},
    };
    const boost::intrusive_ptr<zebui::controls::UI_PictureButton> button(
        new zebui::controls::UI_PictureButton);
    for (const auto& c : cases) {
        zebui::ui::SetIconType(c.iconType);
        button->SetImageBaseName(c.base);
        Names tried;
        EXPECT_EQ(provide(button.get(), c.flags, c.form, tried), c.found)
            << c.base << " " << c.flags;
        EXPECT_EQ(tried, c.tried) << c.base << " " << c.flags;
    }

    // The other picture controls; no look-up at all for an empty name or another node.
    zebui::ui::SetIconType(0);
    const boost::intrusive_ptr<zebui::controls::UI_PictureTextButton> textButton(
        new zebui::controls::UI_PictureTextButton);
    const boost::intrusive_ptr<zebui::controls::UI_StaticImage> staticImage(
        new zebui::controls::UI_StaticImage);
    const boost::intrusive_ptr<zebui::controls::UI_Button> plainButton(
        new zebui::controls::UI_Button);
    textButton->SetImageBaseName("pic");
    staticImage->SetImageName("plain");
    Names tried;
    EXPECT_EQ(provide(textButton.get(), 0, all, tried), 7);
    EXPECT_EQ(tried, (Names{"pic_N"}));
    EXPECT_EQ(provide(staticImage.get(), 0, all, tried), 5);
    EXPECT_EQ(tried.size(), 4u);
    button->SetImageBaseName("");
    for (zebui::ui::UI_Node* control : {static_cast<zebui::ui::UI_Node*>(button.get()),
                                        static_cast<zebui::ui::UI_Node*>(plainButton.get()),
                                        static_cast<zebui::ui::UI_Node*>(nullptr)}) {
        EXPECT_EQ(provide(control, 1, all, tried), 0);
        EXPECT_TRUE(tried.empty());
    }

    // As a control binds it: through a const message function of the singleton.
    staticImage->SetImageName("pic");
    const zebui::ui::ConstMessageFunctionP supply =
        zebui::ui::BindConstMessageFunction(ImageProvider::GetInstance(), all);
    UI_PictureSupplyMessage message(staticImage.get(), 1);
    (*supply)(&message);
    ASSERT_TRUE(message.GetImage());
    EXPECT_EQ(message.GetImage()->GetWidth(), 7);
    EXPECT_EQ(ImageProvider::GetInstance(), ImageProvider::GetInstance());
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
}

TEST_F(UIResourcesTest, AnImageResourceThatCannotBeHadIsNullNotAnError) {
    EXPECT_EQ(ImageProvider::GetImageResource("marker")->GetWidth(), 2);
    EXPECT_FALSE(ImageProvider::GetImageResource("missing"));
    EXPECT_FALSE(ImageProvider::GetImageResource(""));
    vex::app::App::SetAppAvailable(false);
    EXPECT_FALSE(ImageProvider::GetImageResource("marker"));
    vex::app::App::SetAppAvailable(true);
    // Decoded with the workspace's supplier, and cached under it.
    appCache()->ClearLookupLog();
    const auto image =
        appCache()->GetImage(*vex::app::App::GetApp()->GetAppResourceManager(),
                             zebui::ui::UI_NodeManager::Get(false)->GetDefaultSupplier(), "marker",
                             zebui::utility::kImageFileType_PNG);
    EXPECT_EQ(image, ImageProvider::GetImageResource("marker"));
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
}

// A resource file is read whole and a PNG decodes to far more than its bytes, so both are
// refused above their limits, with a report, before anything is read or decoded. The large
// file is sparse: it takes no disk space.
TEST_F(UIResourcesTest, ResourcesAndImagesAboveTheirLimitsAreRefusedWithAReport) {
    const fs::path huge = mRoot / "png" / "huge.png";
    std::ofstream(huge, std::ios::binary).put('\0');
    fs::resize_file(huge, zebui::utility::kLargestResourceBytes + 1);
    const fs::path hugeModule = mRoot / "lua" / "hugemodule.lua";
    fs::create_directories(hugeModule.parent_path());
    std::ofstream(hugeModule, std::ios::binary).put('\0');
    fs::resize_file(hugeModule, zebui::utility::kLargestResourceBytes + 1);
    // A PNG header that claims 20000 x 20000 pixels, 1.6 GB once decoded.
    std::ofstream(mRoot / "png" / "bomb.png", std::ios::binary)
        << std::string("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\x4e\x20\0\0\x4e\x20\x08\x06\0\0\0", 29);
    runLua("res = zebUIResources.getResources(zebUIResources.app_resources)");
    EXPECT_THAT(luaError("res:getImage(supplier, 'huge')"), HasSubstr("image 'huge' not found"));
    EXPECT_THAT(luaError("res:getImage(supplier, 'bomb')"), HasSubstr("image 'bomb' not found"));
    EXPECT_THAT(luaError("require 'hugemodule'"), HasSubstr("module 'hugemodule' not found"));
    std::vector<std::string> messages;
    for (const auto& report : zebcore::debug::RecordedAssertReports())
        messages.push_back(report.message);
    EXPECT_EQ(messages, (std::vector<std::string>{"resource file larger than the resource limit",
                                                  "PNG image larger than the decoded image limit",
                                                  "resource file larger than the resource limit"}));
    // Exactly at the limit is still read.
    fs::resize_file(huge, zebui::utility::kLargestResourceBytes);
    std::vector<unsigned char> bytes;
    EXPECT_TRUE(vex::app::App::GetApp()->GetAppResourceManager()->LoadResourceBytes(u"huge", u"png",
                                                                                    bytes));
    EXPECT_EQ(bytes.size(), zebui::utility::kLargestResourceBytes);
}

}  // namespace
