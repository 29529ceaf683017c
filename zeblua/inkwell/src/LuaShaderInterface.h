// Shader: gradients that scripts make and keep, to fill paths through ShadePath.
#pragma once

struct lua_State;

namespace zebui {
namespace inkwell {
class ShaderInterface;
}
}  // namespace zebui

namespace zeblua {
namespace inkwell {

extern const char* const kZebLuaLinearShaderClassName;      // "Shader"
extern const char* const kZebLuaLinearShaderMetaTableName;  // "zeblua.Shader"

// The payload of the shader proxy at index: the shader, null once released.
zebui::inkwell::ShaderInterface** zeblua_checkShaderInterface(lua_State* L, int index);

}  // namespace inkwell
}  // namespace zeblua

// Registers the metatable and the global table Shader; returns 1 (the table).
extern "C" int luaopen_zeblua_inkwell_ShaderInterface(lua_State* L);
