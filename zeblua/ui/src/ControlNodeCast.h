// The typed method idiom: reaching a control's own class from its wrapper.
#pragma once

#include <cstddef>
#include <exception>

#include "zebcore/utility/NonOptionalDynamicCast.h"
#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zebui/ui/UI_Node.h"

struct lua_State;

namespace zeblua {
namespace ui {

// A method of a control class:
//   int knobSetValue(lua_State* L) {
//       LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);  // "Bad user data"
//       if (!wrapper) return 0;
//       const lua_Number value = luaL_checknumber(L, 2);             // plain values only
//       zebui::controls::UI_Knob* knob = CastControlNode<zebui::controls::UI_Knob>(L, wrapper);
//       if (!knob) return 0;                                         // released wrapper
//       ...C++ objects may live from here on: nothing raises any more...
//   }
// The cast raises a Lua error, so it comes before the method builds any C++ object.

constexpr size_t kCastMessageSize = 256;

void CopyCastMessage(const char* text, char (&message)[kCastMessageSize]);

// Raises message as a Lua error (longjmp): "Invalid type conversion." for the toolkit's
// cast. Only from a frame without C++ objects.
void RaiseCastError(lua_State* L, const char* message);

// The toolkit's cast; a failure's text goes into message and the result is null. Nothing
// thrown leaves it.
template <class T> T* TryCastNode(zebui::ui::UI_Node* node, char (&message)[kCastMessageSize]) {
    try {
        return zebcore::utility::NonOptionalDynamicCast<zebui::ui::UI_Node*, T*>(
            node, zebcore::utility::kInvalidTypeConversion, 105, 21);
    } catch (const std::exception& error) {
        CopyCastMessage(error.what(), message);
        return nullptr;
    }
}

// The wrapper's node as a T; null for a null wrapper or a released one. A node of
// another class raises the toolkit's conversion error as a Lua error, once the
// exception and every C++ object of the cast are gone.
template <class T> T* CastControlNode(lua_State* L, const LuaControlWrapperBase* wrapper) {
    zebui::ui::UI_Node* node = wrapper ? wrapper->GetNode().get() : nullptr;
    if (!node) return nullptr;
    char message[kCastMessageSize];
    T* result = TryCastNode<T>(node, message);
    if (!result) RaiseCastError(L, message);
    return result;
}

}  // namespace ui
}  // namespace zeblua
