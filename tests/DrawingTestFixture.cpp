// The drawing fixture: modules, script helpers, and draw scopes opened from C++.
#include "tests/DrawingTestFixture.h"

#include <cstdio>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"

using zeblua::inkwell::AcquireInkwellProxy;
using zebui::inkwell::Inkwell;

const zebui::inkwell::PixelRGBA kRedPixel{255, 0, 0, 255};
const zebui::inkwell::PixelRGBA kBluePixel{0, 0, 255, 255};

namespace {

int fullCollect(lua_State* L) {
    lua_gc(L, LUA_GCCOLLECT, 0);
    return 0;
}

// dispatch(name): the child's errors go nowhere, as in a draw hook.
int dispatchToChild(lua_State* L) {
    auto* inkwell = static_cast<Inkwell*>(lua_touserdata(L, lua_upvalueindex(1)));
    lua_getglobal(L, luaL_checkstring(L, 1));
    int argCount = 0;
    AcquireInkwellProxy scope(L, inkwell, argCount);
    lua_pcall(L, argCount, 0, 0);
    return 0;
}

}  // namespace

void DrawingTest::SetUp() {
    LuaTest::SetUp();
    lua_register(L, "fullCollect", fullCollect);
    runLua(R"(
        require "zeblua.inkwell.zebInkwell"
        require "zeblua.inkwell.zebSurfaceInterface"
        require "zeblua.inkwell.zebSupplier"
        require "zeblua.inkwell.zebPathInterface"
        require "zeblua.inkwell.PenInterface"
        require "zeblua.inkwell.ShaderInterface"
        require "zeblua.inkwell.zebImageInterface"
        rect = zeblua_CreateNewRectF32
        point = zeblua_CreateNewPointF32
        red = zeblua_CreateNewRGBA(1, 0, 0, 1)
        blue = zeblua_CreateNewRGBA(0, 0, 1, 1)
    )");
    zebcore::debug::ClearRecordedAssertReports();
}

void DrawingTest::draw(Inkwell& inkwell, const std::string& name) {
    lua_getglobal(L, name.c_str());
    int argCount = 0;
    int status = 0;
    {
        AcquireInkwellProxy scope(L, &inkwell, argCount);
        status = lua_pcall(L, argCount, 0, 0);
    }
    if (status != 0) {
        ADD_FAILURE() << "draw callback " << name << ": " << lua_tostring(L, -1);
        lua_pop(L, 1);
    }
}

void DrawingTest::defineDispatch(const char* global, Inkwell& inkwell) {
    lua_pushlightuserdata(L, &inkwell);
    lua_pushcclosure(L, dispatchToChild, 1);
    lua_setglobal(L, global);
}

std::string DrawingTest::nullPointerText() {
    char text[32];
    std::snprintf(text, sizeof text, "%p", static_cast<void*>(nullptr));
    return text;
}

std::vector<std::string> DrawingTest::loggedCalls(const Canvas& canvas, const std::string& prefix) {
    std::vector<std::string> entries;
    for (const std::string& entry : canvas.surface->CallLog())
        if (entry.compare(0, prefix.size(), prefix) == 0) entries.push_back(entry);
    return entries;
}
