// zebhost.now, zebhost.quit, zebhost.answer, zebhost.inputCodes and zebhost.canvas, then
// the test harness's functions.
#include "host/src/HostFunctions.h"

#include <lua.hpp>

#include "host/src/HostCanvas.h"
#include "host/src/HostDataTransfer.h"
#include "host/src/HostCommands.h"
#include "host/src/HostHarness.h"
#include "host/src/HostInputCodes.h"
#include "host/src/HostNodes.h"
#include "host/src/HostPicture.h"
#include "host/src/HostServices.h"
#include "host/src/HostSnapshot.h"
#include "host/src/HostViews.h"
#include "host/src/HostWindows.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/ui/EventLoop.h"

namespace zebhost {

namespace {

using zebui::ui::EventLoop;

// Builds the answer in a frame of its own, so no C++ object is alive in a frame that
// raises a Lua error; RunNative stops what the string or the queue throws.
void queueAnswer(lua_Integer code, const char* text, size_t length, lua_Number delayMs) {
    zebui::ui::UserAnswer answer;
    answer.code = static_cast<int>(code);
    answer.text.assign(text, length);
    answer.delayMs = delayMs > 0 ? static_cast<zebui::ui::VirtualTime>(delayMs) : 0;
    EventLoop::Get()->QueueUserAnswer(answer);
}

int hostNow(lua_State* L) {
    lua_pushnumber(L, static_cast<lua_Number>(EventLoop::Get()->Now()));
    return 1;
}

// Moves the virtual clock ms forward, firing the timers that fall due on the way.
int hostAdvance(lua_State* L) {
    const lua_Number ms = luaL_checknumber(L, 1);
    return zeblua::utility::RunNative(L, "zebhost.advance", [&] {
        EventLoop::Get()->AdvanceTime(ms > 0 ? static_cast<zebui::ui::VirtualTime>(ms) : 0);
        return 0;
    });
}

int hostQuit(lua_State*) {
    EventLoop::Get()->Quit();
    return 0;
}

int hostAnswer(lua_State* L) {
    const lua_Integer code = luaL_checkinteger(L, 1);
    size_t length = 0;
    const char* text = luaL_optlstring(L, 2, "", &length);
    const lua_Number delayMs = luaL_optnumber(L, 3, 0);
    return zeblua::utility::RunNative(L, "zebhost.answer", [&] {
        queueAnswer(code, text, length, delayMs);
        return 0;
    });
}

const luaL_Reg functions[] = {
    {"now", hostNow},       {"advance", hostAdvance},       {"quit", hostQuit},
    {"answer", hostAnswer}, {"inputCodes", PushInputCodes}, {"canvas", HostCanvas},
    {NULL, NULL},
};

}  // namespace

void OpenHostFunctions(lua_State* L) {
    zeblua::utility::RegisterFunctionModule(L, "zebhost", functions);
    lua_pop(L, 1);
    OpenHostNodes(L);
    OpenHostHarness(L);
    OpenHostPicture(L);
    OpenHostSnapshot(L);
    OpenHostServices(L);
    OpenHostDataTransfer(L);
    OpenHostCommands(L);
    OpenHostWindows(L);
    OpenHostViews(L);
}

}  // namespace zebhost
