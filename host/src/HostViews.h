// What a host does for views from XML, and the harness's hooks into it.
#pragma once

struct lua_State;

namespace zebhost {

// Installs, once per process, the host's node factory: the library's own classes that
// the binding's four names leave out ("UI_HotTextTimecode", "LuaUI_TabWell"). Then adds
// to the global table zebhost:
//   zebhost.addResourceFolder(path)        -- searched before the resources folder
//   zebhost.setDebugXMLFolder(key, path)   -- SetDebugXMLResFolder
//   zebhost.setLanguage(language)          -- the localizer's and so the views' language
void OpenHostViews(lua_State* L);

}  // namespace zebhost
