// zebhost.postCommand, commandState, addUndoAction, addStateRestorer, undo, redo and their
// kin.
#include "host/src/HostCommands.h"

#include <string>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "vex/app/App.h"
#include "vex/uisupport/CommandHandler.h"
#include "zeblua/undo/src/LuaAction.h"
#include "zeblua/undo/src/LuaStateRestorer.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaResultString.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebundo/UndoHistory.h"

namespace zebhost {
namespace {

using vex::uisupport::CommandHandlerBase;
using zeblua::utility::RunNative;

size_t commandsReached() {
    const vex::app::App* app = vex::app::App::GetApp();
    return app ? app->GetCommandsReached().size() : 0;
}

// -- handled, reachedApp = zebhost.postCommand(id)
int hostPostCommand(lua_State* L) {
    const int id = static_cast<int>(luaL_checkinteger(L, 1));
    bool reached = false;
    const bool handled = RunNative(L, "zebhost.postCommand", [&] {
        const size_t before = commandsReached();
        const bool answer = CommandHandlerBase::CallCommandChain(id);
        reached = commandsReached() > before;
        return answer;
    });
    lua_pushboolean(L, handled);
    lua_pushboolean(L, reached);
    return 2;
}

struct CommandState {
    bool handled = false;
    bool enabled = false;
    bool checked = false;
};

// -- state = zebhost.commandState(id [, displayString])
int hostCommandState(lua_State* L) {
    const int id = static_cast<int>(luaL_checkinteger(L, 1));
    size_t length = 0;
    const char* initial = luaL_optlstring(L, 2, "", &length);
    std::string* display = zeblua::utility::PushResultString(L);
    const CommandState state = RunNative(L, "zebhost.commandState", [&] {
        CommandState answer;
        zebcore::UTF16String text =
            zebcore::utility::UTF8to16(zebcore::UTF8String(initial, length));
        answer.handled =
            CommandHandlerBase::CommandEnabledChain(id, answer.enabled, answer.checked, text);
        *display = zebcore::utility::UTF16to8(text);
        return answer;
    });
    lua_createtable(L, 0, 4);
    lua_pushboolean(L, state.handled);
    lua_setfield(L, -2, "isHandled");
    lua_pushboolean(L, state.enabled);
    lua_setfield(L, -2, "isEnabled");
    lua_pushboolean(L, state.checked);
    lua_setfield(L, -2, "isChecked");
    lua_pushlstring(L, display->data(), display->size());
    lua_setfield(L, -2, "displayString");
    return 1;
}

bool optFlag(lua_State* L, int index) {
    return lua_isnoneornil(L, index) ? true : lua_toboolean(L, index) != 0;
}

// -- zebhost.addUndoAction(t [, description [, undoable [, changesDocument]]])
// The reference goes over as decimal text, the form native undo code hands it on in.
int hostAddUndoAction(lua_State* L) {
    luaL_checktype(L, 1, LUA_TTABLE);
    size_t length = 0;
    const char* description = luaL_optlstring(L, 2, "", &length);
    const bool undoable = optFlag(L, 3);
    const bool changesDocument = optFlag(L, 4);
    lua_pushvalue(L, 1);
    const int ref = luaL_ref(L, LUA_REGISTRYINDEX);
    return RunNative(L, "zebhost.addUndoAction", [&] {
        const boost::intrusive_ptr<zebundo::Action> action(new zeblua::undo::LuaAction(
            undoable, changesDocument, zebcore::UTF8String(description, length),
            std::to_string(ref), L));
        zebundo::UndoHistory::Get()->AddAction(action);
        return 0;
    });
}

// -- zebhost.addStateRestorer(t [, disabled])
int hostAddStateRestorer(lua_State* L) {
    luaL_checktype(L, 1, LUA_TTABLE);
    const bool disabled = lua_toboolean(L, 2) != 0;
    lua_pushvalue(L, 1);
    const int ref = luaL_ref(L, LUA_REGISTRYINDEX);
    return RunNative(L, "zebhost.addStateRestorer", [&] {
        const boost::intrusive_ptr<zeblua::undo::LuaStateRestorer> restorer(
            new zeblua::undo::LuaStateRestorer(ref, L));
        restorer->DisableRestorer(disabled);
        zebundo::UndoHistory::Get()->AddStateRestorer(restorer);
        return 0;
    });
}

int hostUndo(lua_State* L) {
    lua_pushboolean(
        L, RunNative(L, "zebhost.undo", [] { return zebundo::UndoHistory::Get()->Undo(); }));
    return 1;
}

int hostRedo(lua_State* L) {
    lua_pushboolean(
        L, RunNative(L, "zebhost.redo", [] { return zebundo::UndoHistory::Get()->Redo(); }));
    return 1;
}

int hostUndoCounts(lua_State* L) {
    const zebundo::UndoHistory* history = zebundo::UndoHistory::Get();
    lua_pushinteger(L, static_cast<lua_Integer>(history->GetUndoCount()));
    lua_pushinteger(L, static_cast<lua_Integer>(history->GetRedoCount()));
    return 2;
}

int hostTrimUndo(lua_State* L) {
    const lua_Integer steps = luaL_checkinteger(L, 1);
    return RunNative(L, "zebhost.trimUndo", [&] {
        zebundo::UndoHistory::Get()->Trim(steps > 0 ? static_cast<size_t>(steps) : 0);
        return 0;
    });
}

int hostClearUndo(lua_State* L) {
    return RunNative(L, "zebhost.clearUndo", [] {
        zebundo::UndoHistory::Get()->Clear();
        return 0;
    });
}

const luaL_Reg kCommandFunctions[] = {
    {"postCommand", hostPostCommand},
    {"commandState", hostCommandState},
    {"addUndoAction", hostAddUndoAction},
    {"addStateRestorer", hostAddStateRestorer},
    {"undo", hostUndo},
    {"redo", hostRedo},
    {"undoCounts", hostUndoCounts},
    {"trimUndo", hostTrimUndo},
    {"clearUndo", hostClearUndo},
    {nullptr, nullptr},
};

}  // namespace

void OpenHostCommands(lua_State* L) {
    zeblua::utility::RegisterFunctionModule(L, "zebhost", kCommandFunctions);
    lua_pop(L, 1);
    zeblua::undo::LuaAction::InitLua(L);
    lua_pop(L, 1);
    zeblua::undo::LuaStateRestorer::InitLua(L);
    lua_pop(L, 1);
}

}  // namespace zebhost
