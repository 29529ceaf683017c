// Alert: each function checks its arguments, forwards to the framework's modal boxes over
// the application's main window, and answers what the person pressed.
#include "zeblua/uisupport/src/LuaAlert.h"

#include <lua.hpp>

#include "vex/app/App.h"
#include "vex/uisupport/Alert.h"
#include "zebcore/debug/Debug.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaResultString.h"
#include "zeblua/utility/src/RegistryTables.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/dialogs/SimpleInputBox.h"
#include "zebui/ui/UI_NodeManager.h"
#include "zebworkspace/workspace/TopLevelWindow.h"
#include "zebworkspace/workspace/Workspace.h"

namespace zeblua {
namespace uisupport {

bool Alert::sSlientAlerts = false;

namespace {

constexpr char kAlertClass[] = "Alert";
constexpr char kAlertMetaTable[] = "zeblua.uisupport.Alert";

using VexAlert = vex::uisupport::Alert;
using zebcore::UTF16String;

// The registry key of the table whose close sentinel ends a state's silence.
const char sSilenceResetKey = 0;

int resetSilence(lua_State*) {
    Alert::sSlientAlerts = false;
    return 0;
}

constexpr int kMaxTexts = 3;

// The texts of an alert call, read while no C++ object is alive: pointers into the Lua
// strings at their stack slots, which stay there for the whole call.
struct Texts {
    const char* text[kMaxTexts] = {};
};

// The common preamble. False (the caller answers no value) while alerts are silent, when
// the call has other than count arguments, or when a text is neither string nor number.
bool readTexts(lua_State* L, int first, int count, Texts& texts) {
    if (Alert::sSlientAlerts) return false;
    if (lua_gettop(L) != first + count - 1) return false;
    for (int i = 0; i < count; ++i) {
        const int index = first + i;
        if (!lua_isstring(L, index)) return false;
        texts.text[i] = lua_tostring(L, index);
    }
    return true;
}

// A text up to its first zero byte, as the toolkit takes it.
UTF16String toolkitText(const char* text) {
    return zebcore::utility::UTF8to16(zebcore::UTF8String(text));
}

// The application's main window, or null while there is none.
zebui::ui::UI_Node* alertParent() {
    vex::app::App* app = vex::app::App::GetApp();
    zebworkspace::workspace::Workspace* workspace = app ? app->GetWorkspace() : nullptr;
    return workspace ? workspace->GetMainTopLevelWindow() : nullptr;
}

using ShowFunction = void (*)(const UTF16String&, const UTF16String&, zebui::ui::UI_Node*);

// -- true = Alert.ShowNote(first, second) and its two like
int showPlain(lua_State* L, const char* name, ShowFunction show) {
    Texts texts;
    if (!readTexts(L, 1, 2, texts)) return 0;
    utility::RunNative(L, name, [&] {
        show(toolkitText(texts.text[0]), toolkitText(texts.text[1]), alertParent());
        return 0;
    });
    lua_pushboolean(L, 1);
    return 1;
}

int alertShowNote(lua_State* L) {
    return showPlain(L, "ShowNote", VexAlert::ShowNote);
}

int alertShowStop(lua_State* L) {
    return showPlain(L, "ShowStop", VexAlert::ShowStop);
}

int alertShowCaution(lua_State* L) {
    return showPlain(L, "ShowCaution", VexAlert::ShowCaution);
}

// -- response = Alert.Show(type, icon, first, second)
int alertShow(lua_State* L) {
    if (Alert::sSlientAlerts || lua_gettop(L) != 4) return 0;
    const int type = static_cast<int>(lua_tointeger(L, 1));
    const int icon = static_cast<int>(lua_tointeger(L, 2));
    Texts texts;
    if (!readTexts(L, 3, 2, texts)) return 0;
    const int response = utility::RunNative(L, "Show", [&] {
        return VexAlert::Show(static_cast<VexAlert::Type>(type), static_cast<VexAlert::Icon>(icon),
                              toolkitText(texts.text[0]), toolkitText(texts.text[1]),
                              alertParent());
    });
    lua_pushinteger(L, response);
    return 1;
}

// -- confirmed, text = Alert.SimpleInputBox(title, prompt, initial)
// A cancel answers false alone.
int alertSimpleInputBox(lua_State* L) {
    Texts texts;
    if (!readTexts(L, 1, 3, texts)) return 0;
    std::string* entered = utility::PushResultString(L);
    const bool confirmed = utility::RunNative(L, "SimpleInputBox", [&] {
        UTF16String text = toolkitText(texts.text[2]);
        using Box = zebui::dialogs::UI_MessageBox;
        const bool answered = zebui::dialogs::SimpleInputBox(
            zebui::ui::UI_NodeManager::Get(false)->GetDefaultSupplier(), toolkitText(texts.text[0]),
            toolkitText(texts.text[1]), text, true, nullptr, true, 0.0f, 0.0f, Box::kButton_OK,
            Box::kButton_Cancel);
        if (answered) *entered = zebcore::utility::UTF16to8(text);
        return answered;
    });
    lua_pushboolean(L, confirmed);
    if (!confirmed) return 1;
    lua_pushlstring(L, entered->data(), entered->size());
    return 2;
}

const luaL_Reg kAlertFunctions[] = {
    {"ShowNote", alertShowNote},
    {"ShowStop", alertShowStop},
    {"ShowCaution", alertShowCaution},
    {"Show", alertShow},
    {"SimpleInputBox", alertSimpleInputBox},
    {nullptr, nullptr},
};

const luaL_Reg kAlertMethods[] = {
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaAlertClassName = kAlertClass;
const char* const kZebLuaAlertMetaTableName = kAlertMetaTable;

}  // namespace uisupport
}  // namespace zeblua

extern "C" int luaopen_zeblua_uisupport_Alert(lua_State* L) {
    using namespace zeblua::uisupport;
    using zeblua::utility::SetIntegerConstant;
    using VexAlert = vex::uisupport::Alert;
    zeblua::utility::PushOrMakeRegistryTable(L, &sSilenceResetKey, nullptr, resetSilence);
    lua_pop(L, 1);
    zeblua::utility::RegisterClassModule(L, kAlertMetaTable, kAlertMethods, kAlertClass,
                                         kAlertFunctions);
    SetIntegerConstant(L, "IconNone", VexAlert::IconNone);
    SetIntegerConstant(L, "IconStop", VexAlert::IconStop);
    SetIntegerConstant(L, "IconQuestion", VexAlert::IconQuestion);
    SetIntegerConstant(L, "IconCaution", VexAlert::IconCaution);
    SetIntegerConstant(L, "IconNote", VexAlert::IconNote);
    SetIntegerConstant(L, "TypeOk", VexAlert::TypeOk);
    SetIntegerConstant(L, "TypeOkCancel", VexAlert::TypeOkCancel);
    SetIntegerConstant(L, "TypeAbortRetryIgnore", VexAlert::TypeAbortRetryIgnore);
    SetIntegerConstant(L, "TypeYesNoCancel", VexAlert::TypeYesNoCancel);
    SetIntegerConstant(L, "TypeYesNo", VexAlert::TypeYesNo);
    SetIntegerConstant(L, "TypeRetryCancel", VexAlert::TypeRetryCancel);
    SetIntegerConstant(L, "TypeRetryQuit", VexAlert::TypeRetryQuit);
    SetIntegerConstant(L, "ResponseOk", VexAlert::ResponseOk);
    SetIntegerConstant(L, "ResponseCancel", VexAlert::ResponseCancel);
    SetIntegerConstant(L, "ResponseAbort", VexAlert::ResponseAbort);
    SetIntegerConstant(L, "ResponseIgnore", VexAlert::ResponseIgnore);
    SetIntegerConstant(L, "ResponseYes", VexAlert::ResponseYes);
    SetIntegerConstant(L, "ResponseNo", VexAlert::ResponseNo);
    SetIntegerConstant(L, "ResponseRetry", VexAlert::ResponseRetry);
    return 1;
}

extern "C" bool GetAlertsAreSilent() {
    return zeblua::uisupport::Alert::sSlientAlerts;
}

extern "C" void SetAlertsAreSilent(bool silent) {
    ZEB_ASSERT(0);
    zeblua::uisupport::Alert::sSlientAlerts = silent;
}
