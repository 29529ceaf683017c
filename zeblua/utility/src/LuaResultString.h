// A native string that Lua owns, so a binding can fill it in C++ and push it last.
#pragma once

#include <string>

struct lua_State;

namespace zeblua {
namespace utility {

// Pushes a userdata holding an empty std::string, destroyed by the userdata's __gc, and
// returns the string. A binding calls it once its arguments are checked and before any
// C++ object exists (it may raise Lua's memory error), fills the string in its C++ work,
// then pushes a copy of it: if that push runs out of memory, the collector still frees
// the string, since no C++ frame owns it.
//   std::string* out = utility::PushResultString(L);
//   RunNative(L, "ToUpper", [&] { *out = ...; });
//   lua_pushlstring(L, out->data(), out->size());
std::string* PushResultString(lua_State* L);

}  // namespace utility
}  // namespace zeblua
