// Native values written to Lua through the script layer's global constructors, against
// building the same table natively.
#include <memory>

#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"

namespace zebbench {

namespace {

// The table zeblua_CreateNewRectF32 makes, built field by field with the metatable the
// constructor gives its tables: what the writers would cost without the Lua call.
Step nativeRectTable(int) {
    auto session = std::make_shared<BenchSession>();
    lua_State* L = session->L();
    luaL_dostring(L, "return getmetatable(zeblua_CreateNewRectF32(0, 0, 0, 0))");
    const int metatable = luaL_ref(L, LUA_REGISTRYINDEX);
    return [session, L, metatable] {
        const float left = 1.5f, top = 2.5f, width = 30.0f, height = 40.0f;
        lua_createtable(L, 0, 4);
        lua_pushnumber(L, left);
        lua_setfield(L, -2, "left");
        lua_pushnumber(L, top);
        lua_setfield(L, -2, "top");
        lua_pushnumber(L, width);
        lua_setfield(L, -2, "width");
        lua_pushnumber(L, height);
        lua_setfield(L, -2, "height");
        lua_rawgeti(L, LUA_REGISTRYINDEX, metatable);
        lua_setmetatable(L, -2);
        lua_pop(L, 1);
    };
}

Step pushRect(int) {
    auto session = std::make_shared<BenchSession>();
    lua_State* L = session->L();
    const zebcore::geom::RectT<float> rect(1.5f, 2.5f, 30.0f, 40.0f);
    return [session, L, rect] {
        zeblua::inkwell::PushRectF32ToLua(L, rect);
        lua_pop(L, 1);
    };
}

Step pushColour(int) {
    auto session = std::make_shared<BenchSession>();
    lua_State* L = session->L();
    const zebui::inkwell::ColorRGBA colour(1.0f, 0.5f, 0.25f, 1.0f);
    return [session, L, colour] {
        zeblua::inkwell::PushColorRGBAToLua(L, colour);
        lua_pop(L, 1);
    };
}

}  // namespace

void RegisterMarshallingBenchmarks() {
    RegisterFloor("floor/NativeRectTable", "native table (4 fields + metatable)", 1,
                  nativeRectTable);
    RegisterCase("marshal/PushRectF32ToLua", "PushRectF32ToLua", "floor/NativeRectTable", 1,
                 pushRect);
    RegisterCase("marshal/PushColorRGBAToLua", "PushColorRGBAToLua", "floor/NativeRectTable", 1,
                 pushColour);
}

}  // namespace zebbench
