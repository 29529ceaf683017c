// The fuzz targets' common ground: the shared state and values decoded from bytes.
#include "tests/fuzz/support/FuzzLua.h"

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

#include <lua.hpp>

#include "host/src/Session.h"
#include "zebcore/debug/Debug.h"

namespace zebfuzz {

namespace {

// Helpers written in Lua, compiled once: __index answers for PushRecord and the check that
// ExpectUsable runs. Held by registry references for the life of the process, whose state
// is never closed.
const char* const kHelpers = R"lua(
local function number() return 1.5 end
local function collecting() collectgarbage() return 2 end
local function raising() error("__index raised") end
local function answeringNil() return nil end
local function usable()
  return 1 + 1 == 2 and type(zebhost) == "table" and type(zebString) == "table"
    and type(zeblua_CreateNewRectF32(1, 2, 3, 4)) == "table"
end
return { number, collecting, raising, answeringNil }, usable
)lua";

constexpr int kIndexFunctions = 4;
int sIndexFunctionsRef = LUA_NOREF;
int sUsableRef = LUA_NOREF;
unsigned sInputs = 0;

[[noreturn]] void fail(const char* what, lua_State* L) {
    const char* message = L ? lua_tostring(L, -1) : nullptr;
    std::fprintf(stderr, "zebfuzz: %s%s%s\n", what, message ? ": " : "", message ? message : "");
    std::abort();
}

}  // namespace

lua_State* OpenState(const char* setup) {
    zebcore::debug::SetAssertEchoEnabled(false);
    lua_State* L = luaL_newstate();
    if (!L) fail("no Lua state", nullptr);
    zebhost::SessionOptions options;
    options.resourcesDir = ZEBHOST_DEFAULT_RESOURCES;
    std::string error;
    if (!zebhost::OpenSession(L, options, error)) {
        std::fprintf(stderr, "zebfuzz: session: %s\n", error.c_str());
        std::abort();
    }
    if (luaL_loadstring(L, kHelpers) != 0 || lua_pcall(L, 0, 2, 0) != 0) fail("helpers", L);
    sUsableRef = luaL_ref(L, LUA_REGISTRYINDEX);
    sIndexFunctionsRef = luaL_ref(L, LUA_REGISTRYINDEX);
    if (luaL_loadstring(L, setup) != 0 || lua_pcall(L, 0, 0, 0) != 0) fail("setup", L);
    return L;
}

double ConsumeNumber(FuzzedDataProvider& data) {
    static const double kBoundaries[] = {
        0.0,
        -0.0,
        std::numeric_limits<double>::quiet_NaN(),
        -std::numeric_limits<double>::quiet_NaN(),
        HUGE_VAL,
        -HUGE_VAL,
        DBL_MAX,
        -DBL_MAX,
        DBL_MIN,
        std::numeric_limits<double>::denorm_min(),
        FLT_MAX,
        -FLT_MAX,
        static_cast<double>(FLT_MAX) * 2,
        2147483647.0,
        2147483648.0,
        -2147483648.0,
        -2147483649.0,
        4294967296.0,
        9007199254740992.0,
        9223372036854775808.0,
        -9223372036854775808.0,
        1e300,
        0.5,
        -0.5,
        1e-9,
    };
    switch (data.ConsumeIntegralInRange(0, 3)) {
    case 0:
        return data.ConsumeIntegralInRange(-4, 300);
    case 1:
        return data.ConsumeFloatingPointInRange(-1000.0, 1000.0);
    case 2:
        return data.PickValueInArray(kBoundaries);
    default:
        return data.ConsumeFloatingPoint<double>();
    }
}

void PushText(lua_State* L, FuzzedDataProvider& data, size_t maxLength) {
    char bytes[256];
    const size_t wanted = data.ConsumeIntegralInRange<size_t>(0, maxLength < 256 ? maxLength : 256);
    lua_pushlstring(L, bytes, data.ConsumeData(bytes, wanted));
}

void PushNumberLike(lua_State* L, FuzzedDataProvider& data) {
    switch (data.ConsumeIntegralInRange(0, 15)) {
    case 0:
        lua_pushfstring(L, " %f ", ConsumeNumber(data));  // lua_isnumber takes it
        return;
    case 1:
        PushAny(L, data);
        return;
    default:
        lua_pushnumber(L, ConsumeNumber(data));
    }
}

void PushAny(lua_State* L, FuzzedDataProvider& data, int depth) {
    switch (data.ConsumeIntegralInRange(0, 7)) {
    case 0:
        lua_pushnil(L);
        return;
    case 1:
        lua_pushboolean(L, data.ConsumeBool());
        return;
    case 2:
    case 3:
        lua_pushnumber(L, ConsumeNumber(data));
        return;
    case 4:
        lua_pushfstring(L, "%f", ConsumeNumber(data));
        return;
    case 5:
        PushText(L, data, 16);
        return;
    case 6:
        lua_newtable(L);
        for (int i = data.ConsumeIntegralInRange(0, depth > 0 ? 4 : 0); i > 0; --i) {
            PushAny(L, data, depth - 1);
            lua_rawseti(L, -2, i);
        }
        return;
    default:
        lua_rawgeti(L, LUA_REGISTRYINDEX, sIndexFunctionsRef);
        lua_rawgeti(L, -1, data.ConsumeIntegralInRange(1, kIndexFunctions));
        lua_remove(L, -2);
    }
}

void PushRecord(lua_State* L, FuzzedDataProvider& data, const char* const* fields, int count) {
    lua_createtable(L, 0, count);
    for (int i = 0; i < count; ++i) {
        if (data.ConsumeIntegralInRange(0, 31) == 0) continue;  // missing: __index or an error
        PushNumberLike(L, data);
        lua_setfield(L, -2, fields[i]);
    }
    if (data.ConsumeIntegralInRange(0, 15) != 0) return;
    lua_createtable(L, 0, 1);
    lua_rawgeti(L, LUA_REGISTRYINDEX, sIndexFunctionsRef);
    lua_rawgeti(L, -1, data.ConsumeIntegralInRange(1, kIndexFunctions));
    lua_setfield(L, -3, "__index");
    lua_pop(L, 1);
    lua_setmetatable(L, -2);
}

int Call(lua_State* L, int nargs, int nresults) {
    const int status = lua_pcall(L, nargs, nresults, 0);
    if (status != 0 && !lua_isstring(L, -1)) fail("an error that is not a message", nullptr);
    return status;
}

void ExpectUsable(lua_State* L) {
    lua_settop(L, 0);
    lua_rawgeti(L, LUA_REGISTRYINDEX, sUsableRef);
    if (lua_pcall(L, 0, 1, 0) != 0) fail("state no longer usable", L);
    if (!lua_toboolean(L, -1)) fail("globals or script layer broken", nullptr);
    lua_settop(L, 0);
    if (++sInputs % 64 == 0) {
        lua_gc(L, LUA_GCCOLLECT, 0);
        zebcore::debug::ClearRecordedAssertReports();
    }
}

}  // namespace zebfuzz
