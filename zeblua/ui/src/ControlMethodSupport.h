// What the methods of the control classes share: the typed method idiom on a held control.
#pragma once

#include <type_traits>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zeblua/ui/src/ControlNodeCast.h"
#include "zeblua/ui/src/LuaFunctionEntry.h"
#include "zeblua/utility/src/MainThread.h"
#include "zeblua/utility/src/RunNative.h"

namespace zeblua {
namespace ui {

// Each helper takes the node of argument 1 as a T when it is called, so a method calls
// it once all its arguments are read (ControlNodeCast.h): a node of another class raises
// "Invalid type conversion.", a released or ended wrapper answers nothing. The control is
// held for the call, which may reach Lua (a value change runs the change functions) and
// drop every other reference; the wrapper is never touched after it.

// A counted hold on the node that control belongs to. T may be a further base of the node
// with no count of its own (the text control base), so the node is what is held.
template <class T> boost::intrusive_ptr<zebui::ui::UI_Node> HoldNode(T* control) {
    if constexpr (std::is_base_of<zebui::ui::UI_Node, T>::value)
        return boost::intrusive_ptr<zebui::ui::UI_Node>(control);
    else
        return boost::intrusive_ptr<zebui::ui::UI_Node>(dynamic_cast<zebui::ui::UI_Node*>(control));
}

// call(control) for its effect; no result.
template <class T, class Call> int CallOnControl(lua_State* L, const char* name, Call call) {
    T* control = CastControlNode<T>(L, 1);
    if (!control) return 0;
    return utility::RunNative(L, name, [&] {
        const auto held = HoldNode(control);
        call(*control);
        return 0;
    });
}

// push(L, query(control)), once the control has let go: push may run script (a geometry
// constructor) and may raise. It answers the number of results.
template <class T, class Query, class Push>
int PushControlAnswer(lua_State* L, const char* name, Query query, Push push) {
    T* control = CastControlNode<T>(L, 1);
    if (!control) return 0;
    const auto answer = utility::RunNative(L, name, [&] {
        const auto held = HoldNode(control);
        return query(*control);
    });
    return push(L, answer);
}

// A plain answer as Lua has it: a bool as a boolean, any other arithmetic value a number.
template <class Answer> int PushPlainAnswer(lua_State* L, Answer answer) {
    if constexpr (std::is_same<Answer, bool>::value)
        lua_pushboolean(L, answer);
    else
        lua_pushnumber(L, static_cast<lua_Number>(answer));
    return 1;
}

// What query(control) answers, pushed as a boolean or a number.
template <class T, class Query> int AnswerOfControl(lua_State* L, const char* name, Query query) {
    return PushControlAnswer<T>(L, name, query, [](lua_State* state, auto answer) {
        return PushPlainAnswer(state, answer);
    });
}

// Hands add(L, control, reference) a registry reference to the function at argument 2, the
// value on top of the stack (so exactly two arguments are expected). false for a released
// wrapper, or when add refuses (the reference is then released); a function argument that
// isn't one is Lua's type error, a control of another class the conversion error, both
// raised before the reference is taken. add runs under RunNative with the control held.
template <class T, class Add> bool AddFunctionReference(lua_State* L, const char* name, Add add) {
    bool live = false;
    if (GetControlUserData(L, 1)) {
        luaL_checktype(L, 2, LUA_TFUNCTION);
        live = CastControlNode<T>(L, 1) != nullptr;
    }
    if (!live) return false;
    const int reference = luaL_ref(L, LUA_REGISTRYINDEX);
    T* control = CastControlNode<T>(L, 1);  // taking the reference may collect, and so run script
    const bool added = control && utility::RunNative(L, name, [&] {
                           const auto held = HoldNode(control);
                           return add(L, control, reference);
                       });
    if (!added) luaL_unref(L, LUA_REGISTRYINDEX, reference); /* nobody holds it */
    return added;
}

// -- control:SetXFunction(fn) and its kind: install(control, entry) with the function at
// argument 2 (any further argument is dropped) as an entry on the state's main thread.
// False, the reference released, when the main thread isn't known.
template <class T, class Install>
bool AddCallbackFunction(lua_State* L, const char* name, Install install) {
    lua_settop(L, 2); /* the function is the reference's value */
    return AddFunctionReference<T>(L, name, [&](lua_State* state, T* control, int reference) {
        lua_State* main = utility::GetMainThread(state);
        if (!main) return false;
        install(*control, LuaFunctionEntry{main, reference});
        return true;
    });
}

// -- ok = control:NotifyWhenChanged(fn) and its kind, through AddFunctionReference.
template <class T>
int AddNotifyFunction(lua_State* L, const char* name, bool (*add)(lua_State*, T*, int)) {
    lua_pushboolean(L, AddFunctionReference<T>(L, name, add));
    return 1;
}

}  // namespace ui
}  // namespace zeblua
