// Alert: modal message boxes and a one-line input box, and the switch that silences them.
#pragma once

struct lua_State;

namespace zeblua {
namespace uisupport {

extern const char* const kZebLuaAlertClassName;      // "Alert"
extern const char* const kZebLuaAlertMetaTableName;  // "zeblua.uisupport.Alert"

class Alert {
public:
    // While true, no box appears and every Alert function answers no value. False at
    // load, and false again when a Lua state that opened the module closes, so one
    // script's silence never reaches the next.
    static bool sSlientAlerts;
};

}  // namespace uisupport
}  // namespace zeblua

extern "C" {
// Registers the global table Alert and its constants; returns 1.
int luaopen_zeblua_uisupport_Alert(lua_State* L);

// For the host and the declarative dialogs. Setting makes the assertion report "0" each
// time (silencing is meant for automated runs only), then stores the value.
bool GetAlertsAreSilent();
void SetAlertsAreSilent(bool silent);
}
