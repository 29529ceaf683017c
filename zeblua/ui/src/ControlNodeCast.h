// Reaching a wrapper's node, or a control's own class, from a method's argument.
#pragma once

#include <cstddef>
#include <exception>

#include "zebcore/utility/NonOptionalDynamicCast.h"
#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zebui/ui/UI_Node.h"

struct lua_State;

namespace zeblua {
namespace ui {

// The shape of every wrapper method:
//   int knobSetValue(lua_State* L) {
//       if (!GetControlUserData(L, 1)) return 0;                  // "Bad user data"
//       zebcore::geom::RectT<float> rect;                         // trivial values only
//       inkwell::GetRectF32FromLua(L, 2, rect);                   // may run any script
//       zebui::controls::UI_Knob* knob = CastControlNode<zebui::controls::UI_Knob>(L, 1);
//       if (!knob) return 0;                                      // released meanwhile
//       ...from here C++ objects may live: nothing raises any more; hold the node
//       (boost::intrusive_ptr) across a call that can reach Lua, push results last...
//   }
// Reading an argument can run script: a table's __index, a number's conversion to a
// string (a collection step runs the finalizers of a script's own proxies). That script
// may release the wrapper or end it with getmetatable(w).__gc(w), which frees it. So no
// wrapper pointer is kept across the reads: the node is taken from the stack index again
// once every argument is read. The cast raises a Lua error, so it comes before the method
// builds any C++ object.

// The node of the wrapper at index: null for a wrapper that was released or ended.
// "Bad user data" for anything but a wrapper.
zebui::ui::UI_Node* LiveNode(lua_State* L, int index);

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

// The node of the wrapper at index as a T; null for a released or ended wrapper. A node
// of another class raises the toolkit's conversion error as a Lua error, once the
// exception and every C++ object of the cast are gone.
template <class T> T* CastControlNode(lua_State* L, int index) {
    zebui::ui::UI_Node* node = LiveNode(L, index);
    if (!node) return nullptr;
    char message[kCastMessageSize];
    T* result = TryCastNode<T>(node, message);
    if (!result) RaiseCastError(L, message);
    return result;
}

}  // namespace ui
}  // namespace zeblua
