// zebhost.newNode and the harness's wrapper push.
#include "host/src/HostNodes.h"

#include <cxxabi.h>

#include <cstdlib>
#include <cstring>
#include <typeinfo>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/UI_Button.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/controls/UI_DisclosureTriangleButton.h"
#include "zebui/controls/UI_Divider.h"
#include "zebui/controls/UI_HotTextButton.h"
#include "zebui/controls/UI_HotTextNumber.h"
#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/controls/UI_Knob.h"
#include "zebui/controls/UI_ListBoxItem.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_RadioButton.h"
#include "zebui/controls/UI_RadioGroup.h"
#include "zebui/controls/UI_ScrollBar.h"
#include "zebui/controls/UI_Slider.h"
#include "zebui/controls/UI_StaticImage.h"
#include "zebui/controls/UI_StaticText.h"
#include "zebui/controls/UI_TabWell.h"
#include "zebui/controls/UI_TextButton.h"
#include "zebui/ui/UI_ArrangementView.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_SubView.h"

namespace zebhost {
namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;

struct NodeClass {
    const char* name;
    zebui::ui::UI_Node* (*make)();
};

template <class T> zebui::ui::UI_Node* make() {
    return new T;
}

// The classes whose constructors take no argument; the rest come with their own
// constructors in the controls module.
const NodeClass kNodeClasses[] = {
    {"UI_Node", make<zebui::ui::UI_Node>},
    {"UI_SubView", make<zebui::ui::UI_SubView>},
    {"UI_ControlView", make<zebui::controls::UI_ControlView>},
    {"UI_InteractiveControlView", make<zebui::controls::UI_InteractiveControlView>},
    {"UI_Button", make<zebui::controls::UI_Button>},
    {"UI_TextButton", make<zebui::controls::UI_TextButton>},
    {"UI_PictureButton", make<zebui::controls::UI_PictureButton>},
    {"UI_DisclosureTriangleButton", make<zebui::controls::UI_DisclosureTriangleButton>},
    {"UI_Checkbox", make<zebui::controls::UI_Checkbox>},
    {"UI_RadioButton", make<zebui::controls::UI_RadioButton>},
    {"UI_RadioGroup", make<zebui::controls::UI_RadioGroup>},
    {"UI_Slider", make<zebui::controls::UI_Slider>},
    {"UI_Knob", make<zebui::controls::UI_Knob>},
    {"UI_ScrollBar", make<zebui::controls::UI_ScrollBar>},
    {"UI_HotTextButton", make<zebui::controls::UI_HotTextButton>},
    {"UI_HotTextNumber", make<zebui::controls::UI_HotTextNumber>},
    {"UI_StaticText", make<zebui::controls::UI_StaticText>},
    {"UI_StaticImage", make<zebui::controls::UI_StaticImage>},
    {"UI_Divider", make<zebui::controls::UI_Divider>},
    {"UI_ListBoxItem", make<zebui::controls::UI_ListBoxItem>},
    {"UI_TabWell", make<zebui::controls::UI_TabWell>},
    {"UI_ArrangementView", make<zebui::ui::UI_ArrangementView>},
};

// Pushes the names of the known classes, separated by ", ".
void pushKnownNames(lua_State* L) {
    luaL_Buffer names;
    luaL_buffinit(L, &names);
    for (const NodeClass& known : kNodeClasses) {
        if (&known != kNodeClasses) luaL_addstring(&names, ", ");
        luaL_addstring(&names, known.name);
    }
    luaL_pushresult(&names);
}

int hostNewNode(lua_State* L) {
    const char* className = luaL_checkstring(L, 1);
    const NodeClass* found = nullptr;
    for (const NodeClass& known : kNodeClasses)
        if (std::strcmp(known.name, className) == 0) found = &known;
    if (!found) {
        pushKnownNames(L);
        return luaL_error(L, "zebhost.newNode: unknown class '%s' (known: %s)", className,
                          lua_tostring(L, -1));
    }
    PrepareWrapperPush(L);
    const bool pushed = zeblua::utility::RunNative(L, "zebhost.newNode", [&] {
        const NodeP node(found->make());
        return FinishWrapperPush(L, node);
    });
    return pushed ? 1 : lua_error(L);
}

const luaL_Reg kNodeFunctions[] = {
    {"newNode", hostNewNode},
    {nullptr, nullptr},
};

}  // namespace

zebui::ui::UI_Node* CheckNodeArgument(lua_State* L, int index) {
    zeblua::ui::LuaControlWrapperBase* wrapper = zeblua::ui::GetControlUserData(L, index);
    zebui::ui::UI_Node* node = wrapper ? wrapper->GetNode().get() : nullptr;
    if (!node) luaL_argerror(L, index, "released node");
    return node;
}

void NodeClassName(const zebui::ui::UI_Node& node, char* buffer, unsigned long size) {
    int status = 0;
    char* demangled = abi::__cxa_demangle(typeid(node).name(), nullptr, nullptr, &status);
    const char* full = status == 0 && demangled ? demangled : typeid(node).name();
    // The last name before any template argument list.
    const char* templateStart = std::strchr(full, '<');
    const char* name = full;
    for (const char* at = full; *at && (!templateStart || at < templateStart); ++at)
        if (at[0] == ':' && at[1] == ':') name = at + 2;
    std::strncpy(buffer, name, size - 1);
    buffer[size - 1] = '\0';
    std::free(demangled);
}

void OpenHostNodes(lua_State* L) {
    zeblua::utility::RegisterFunctionModule(L, "zebhost", kNodeFunctions);
    lua_pop(L, 1);
}

}  // namespace zebhost
