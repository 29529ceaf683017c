// What a host does for views from XML.
#include "host/src/HostViews.h"

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "vex/app/App.h"
#include "zebcore/config/Localizer.h"
#include "zebcore/filesupport/Dir.h"
#include "zeblua/ui/controls/src/UI_HotTextTimecode.h"
#include "zeblua/ui/src/LuaUI_TabWell.h"
#include "zeblua/ui/src/LuaViewFromXML.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/utility/ResourceManager.h"

namespace zebhost {
namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;

// The library's classes beyond the binding's four, so a view file can name every class
// the controls module constructs.
NodeP makeLibraryClass(const zebcore::UTF16String& className) {
    if (className == u"UI_HotTextTimecode")
        return NodeP(new zeblua::controls::UI_HotTextTimecode());
    if (className == u"LuaUI_TabWell") return NodeP(new zeblua::ui::LuaUI_TabWell());
    return nullptr;
}

zebcore::filesupport::Dir folderOf(const char* path, size_t length) {
    return zebcore::filesupport::Dir(zebcore::utility::UTF8to16(zebcore::UTF8String(path, length)));
}

int hostAddResourceFolder(lua_State* L) {
    size_t length = 0;
    const char* path = luaL_checklstring(L, 1, &length);
    return zeblua::utility::RunNative(L, "zebhost.addResourceFolder", [&] {
        vex::app::App::GetApp()->GetAppResourceManager()->AddFolder(folderOf(path, length));
        return 0;
    });
}

int hostSetDebugXMLFolder(lua_State* L) {
    const char* key = luaL_checkstring(L, 1);
    size_t length = 0;
    const char* path = luaL_checklstring(L, 2, &length);
    return zeblua::utility::RunNative(L, "zebhost.setDebugXMLFolder", [&] {
        zeblua::ui::SetDebugXMLResFolder(key, folderOf(path, length));
        return 0;
    });
}

int hostSetLanguage(lua_State* L) {
    const char* language = luaL_checkstring(L, 1);
    return zeblua::utility::RunNative(L, "zebhost.setLanguage", [&] {
        zebcore::config::Localizer::Get()->SetLanguage(language);
        return 0;
    });
}

const luaL_Reg kViewFunctions[] = {
    {"addResourceFolder", hostAddResourceFolder},
    {"setDebugXMLFolder", hostSetDebugXMLFolder},
    {"setLanguage", hostSetLanguage},
    {nullptr, nullptr},
};

}  // namespace

void OpenHostViews(lua_State* L) {
    static bool sFactoryInstalled = false;
    if (!sFactoryInstalled) {
        zeblua::ui::InstallNodeFactoryFxn(&makeLibraryClass);
        sFactoryInstalled = true;
    }
    zeblua::utility::RegisterFunctionModule(L, "zebhost", kViewFunctions);
    lua_pop(L, 1);
}

}  // namespace zebhost
