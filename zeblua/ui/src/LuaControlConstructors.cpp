// The 29 constructors of zebcontrols and the table that holds them.
#include "zeblua/ui/src/LuaControlConstructors.h"

#include <boost/intrusive_ptr.hpp>

#include "os/NSWindow.h"
#include "vex/app/App.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/inkwell/src/LuaSupplier.h"
#include "zeblua/ui/controls/src/UI_HotTextTimecode.h"
#include "zeblua/ui/src/ControlWrapperPush.h"
#include "zeblua/ui/src/ImageProvider.h"
#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaOverlaySubView.h"
#include "zeblua/ui/src/LuaPopupWindow.h"
#include "zeblua/ui/src/LuaUI_TabWell.h"
#include "zeblua/ui/src/LuaViewFromXML.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/controls/UI_DisclosureTriangleButton.h"
#include "zebui/controls/UI_Divider.h"
#include "zebui/controls/UI_HotTextButton.h"
#include "zebui/controls/UI_HotTextNumber.h"
#include "zebui/controls/UI_Knob.h"
#include "zebui/controls/UI_ListBox.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_Popup.h"
#include "zebui/controls/UI_RadioButton.h"
#include "zebui/controls/UI_ScrollView.h"
#include "zebui/controls/UI_SearchBox.h"
#include "zebui/controls/UI_SectionView.h"
#include "zebui/controls/UI_SplitterView.h"
#include "zebui/controls/UI_StaticImage.h"
#include "zebui/controls/UI_StaticText.h"
#include "zebui/controls/UI_TextButton.h"
#include "zebui/controls/UI_TextEdit.h"
#include "zebui/ui/OS_PopupViewContainer.h"
#include "zebui/ui/UI_ArrangementView.h"
#include "zebui/ui/UI_Dialog.h"
#include "zebui/ui/UI_SubView.h"
#include "zebwebview/ZEBWebView.h"
#include "zebworkspace/workspace/TopLevelWindow.h"
#include "zebworkspace/workspace/Workspace.h"

namespace zeblua {
namespace ui {
namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;
namespace zc = zebui::controls;
namespace zu = zebui::ui;

// make runs as the binding's C++ work and answers the node held: whatever it throws
// (a failed allocation) is raised by RunNative once its objects are gone.
template <class Make> int pushNew(lua_State* L, const char* name, Make make) {
    PrepareWrapperPush(L);
    const bool pushed = utility::RunNative(L, name, [&] { return FinishWrapperPush(L, make()); });
    return pushed ? 1 : lua_error(L);
}

// Optional arguments are recognised by count, not by type.
bool hasArgument(lua_State* L, int index) {
    return lua_gettop(L) >= index;
}

bool flagArgument(lua_State* L, int index) {
    return hasArgument(L, index) && lua_toboolean(L, index) != 0;
}

// The image name of NewPictureButton and NewStaticImage: argument 1, empty without one.
const char* imageNameArgument(lua_State* L, size_t& length) {
    length = 0;
    return hasArgument(L, 1) ? luaL_checklstring(L, 1, &length) : "";
}

// Picture controls get their name, empty too, as 8-bit text, and the image provider.
template <class Picture, void (Picture::*SetName)(const zebcore::UTF8String&)>
int newPicture(lua_State* L, const char* functionName) {
    size_t length = 0;
    const char* name = imageNameArgument(L, length);
    return pushNew(L, functionName, [&] {
        Picture* picture = new Picture();
        const NodeP node(picture);
        (picture->*SetName)(zebcore::UTF8String(name, length));
        uit::ImageProvider::InstallImageSupply(*picture);
        return node;
    });
}

zu::UI_Node* makeListBox() {
    return new zc::UI_ListBox(false, false, false, false);
}

zu::UI_Node* makePopup() {
    return new zc::UI_Popup(0, false);
}

zu::UI_Node* makeSplitterView() {
    return new zc::UI_SplitterView(0, 0.5f, 6.0f);
}

zu::UI_Node* makeSectionView() {
    return new zc::UI_SectionView(zebcore::UTF16String(), true);
}

zu::UI_Node* makeWebView() {
    return new zebwebview::ZEBWebView(0);
}

// zebcontrols.NewPictureButton([imageBaseName])
int controlsNewPictureButton(lua_State* L) {
    return newPicture<zc::UI_PictureButton, &zc::UI_PictureButton::SetImageBaseName>(
        L, "NewPictureButton");
}

// zebcontrols.NewStaticImage([imageName])
int controlsNewStaticImage(lua_State* L) {
    return newPicture<zc::UI_StaticImage, &zc::UI_StaticImage::SetImageName>(L, "NewStaticImage");
}

// zebcontrols.NewSearchBox([first [, second]]): with second true the box gets a search
// history and a set of saved searches of its own, and a tool tip made from the history.
int controlsNewSearchBox(lua_State* L) {
    const bool first = flagArgument(L, 1);
    const bool second = flagArgument(L, 2);
    return pushNew(L, "NewSearchBox", [&] {
        zc::UI_SearchBox* box = new zc::UI_SearchBox(first, second);
        const NodeP node(box);
        if (second) {
            box->mSearchHistory.reset(new std::list<zebcore::UTF16String>);
            box->SetSearchToolTip();
            box->mSavedSearches.reset(new std::set<zebcore::UTF16String>);
            box->SetSearchToolTip();
        }
        return node;
    });
}

// zebcontrols.NewScrollView([flags [, view]]): a view that is no sub view counts as none;
// anything but a wrapper is "Bad user data".
int controlsNewScrollView(lua_State* L) {
    const lua_Integer flags = luaL_optinteger(L, 1, 0);
    zu::UI_SubView* content = nullptr;
    if (hasArgument(L, 2)) {
        const LuaControlWrapperBase* wrapper = GetControlUserData(L, 2);
        content = wrapper ? dynamic_cast<zu::UI_SubView*>(wrapper->GetNode().get()) : nullptr;
    }
    return pushNew(L, "NewScrollView", [&] {
        // The wrapper at 2 holds content until the scroll view holds it too.
        const boost::intrusive_ptr<zu::UI_SubView> contentView(content);
        return NodeP(new zc::UI_ScrollView(static_cast<unsigned int>(flags), contentView));
    });
}

// zebcontrols.NewPopupWindow(supplier [, floating]): placed at (0, 0), 100 by 100.
int controlsNewPopupWindow(lua_State* L) {
    const zebui::inkwell::SupplierInterface* supplier = inkwell::zeblua_checkSupplier(L, 1);
    const bool floating = flagArgument(L, 2);
    return pushNew(L, "NewPopupWindow", [&] {
        LuaPopupWindow* window = new LuaPopupWindow(L, supplier, floating);
        const NodeP node(window);
        window->UI_SetGlobalStructureRect(zebcore::geom::RectT<int>(0, 0, 100, 100));
        return node;
    });
}

// The operating system window of the application's main window; null while the host
// has no application up.
NSWindow* mainPlatformWindow() {
    const vex::app::App* app = vex::app::App::GetApp();
    return app ? app->GetWorkspace()->GetMainTopLevelWindow()->GetPlatformWindow(false) : nullptr;
}

// zebcontrols.NewDialog(supplier, title, position, size, owner): owner is a wrapper, or
// an explicit nil for the main window; a missing owner is "Bad user data". The points are
// read as every point reader does, so a trailing nil leaves both at zero.
int controlsNewDialog(lua_State* L) {
    const zebui::inkwell::SupplierInterface* supplier = inkwell::zeblua_checkSupplier(L, 1);
    size_t titleLength = 0;
    const char* title = luaL_checklstring(L, 2, &titleLength);
    zebcore::geom::PointT<float> position;
    zebcore::geom::PointT<float> size;
    inkwell::GetPointF32FromLua(L, 3, position);
    inkwell::GetPointF32FromLua(L, 4, size);
    const bool mainWindowOwns = lua_type(L, 5) == LUA_TNIL;
    zu::UI_Node* owner = nullptr;
    if (!mainWindowOwns) {
        const LuaControlWrapperBase* wrapper = GetControlUserData(L, 5);
        owner = wrapper ? wrapper->GetNode().get() : nullptr;
    }
    return pushNew(L, "NewDialog", [&] {
        const zebcore::UTF16String title16 =
            zebcore::utility::UTF8to16(zebcore::UTF8String(title, titleLength));
        if (mainWindowOwns)
            return NodeP(new zu::UI_Dialog(supplier, title16, position, size, false,
                                           mainPlatformWindow(), true, false, true, true, 0, 1));
        return NodeP(new zu::UI_Dialog(supplier, title16, position, size, false, owner, true, false,
                                       true, true, 0, 1));
    });
}

// zebcontrols.NewTextEdit([flags [, alignment [, fontSize]]]): a size above 0 replaces
// the theme's.
int controlsNewTextEdit(lua_State* L) {
    const lua_Integer flags = luaL_optinteger(L, 1, 0);
    const lua_Integer alignment = luaL_optinteger(L, 2, 0);
    const float fontSize = hasArgument(L, 3) ? static_cast<float>(lua_tonumber(L, 3)) : 0.0f;
    return pushNew(L, "NewTextEdit", [&] {
        zc::UI_TextEdit* edit =
            new zc::UI_TextEdit(static_cast<unsigned int>(flags), static_cast<int>(alignment));
        const NodeP node(edit);
        if (fontSize > 0) edit->SetCustomFontSize(fontSize);
        return node;
    });
}

}  // namespace

int PushNewControl(lua_State* L, zu::UI_Node* (*make)()) {
    return pushNew(L, "controlNew", [&] { return NodeP(make()); });
}

const luaL_Reg kControlConstructors[] = {
    {"LoadControlsFromXml", LoadControlsFromXML},
    {"NewCheckbox", controlNew<MakeByDefault<zc::UI_Checkbox>>},
    {"NewRadioButton", controlNew<MakeByDefault<zc::UI_RadioButton>>},
    {"NewPictureButton", controlsNewPictureButton},
    {"NewSearchBox", controlsNewSearchBox},
    {"NewMultiColumnTree", controlNew<MakeByDefault<LuaMultiColumnTree>>},
    {"NewHotTextButton", controlNew<MakeByDefault<zc::UI_HotTextButton>>},
    {"NewHotTextNumber", controlNew<MakeByDefault<zc::UI_HotTextNumber>>},
    {"NewHotTextTimecode", controlNew<MakeByDefault<controls::UI_HotTextTimecode>>},
    {"NewKnob", controlNew<MakeByDefault<zc::UI_Knob>>},
    {"NewListBox", controlNew<makeListBox>},
    {"NewStaticText", controlNew<MakeByDefault<zc::UI_StaticText>>},
    {"NewTextButton", controlNew<MakeByDefault<zc::UI_TextButton>>},
    {"NewDisclosureTriangleButton", controlNew<MakeByDefault<zc::UI_DisclosureTriangleButton>>},
    {"NewSubView", controlNew<MakeByDefault<zu::UI_SubView>>},
    {"NewOverlaySubView", controlNew<MakeByDefault<LuaOverlaySubView>>},
    {"NewPopupViewContainer", controlNew<MakeByDefault<zu::OS_PopupViewContainer>>},
    {"NewScrollView", controlsNewScrollView},
    {"NewPopup", controlNew<makePopup>},
    {"NewSplitterView", controlNew<makeSplitterView>},
    {"NewArrangementView", controlNew<MakeByDefault<zu::UI_ArrangementView>>},
    {"NewSectionView", controlNew<makeSectionView>},
    {"NewPopupWindow", controlsNewPopupWindow},
    {"NewDialog", controlsNewDialog},
    {"NewStaticImage", controlsNewStaticImage},
    {"NewTextEdit", controlsNewTextEdit},
    {"NewDivider", controlNew<MakeByDefault<zc::UI_Divider>>},
    {"NewTabWell", controlNew<MakeByDefault<LuaUI_TabWell>>},
    {"NewWebView", controlNew<makeWebView>},
    {nullptr, nullptr},
};

}  // namespace ui
}  // namespace zeblua
