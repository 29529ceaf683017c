// What the methods of the node set share: flag defaults, calls on a held node, answers.
#pragma once

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/ControlNodeCast.h"
#include "zeblua/ui/src/ControlWrapperPush.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;

// A flag whose default is true: lua_toboolean of the argument when the stack holds it, so
// a nil that is there counts as false.
bool FlagDefaultTrue(lua_State* L, int index);

// The helpers of ControlMethodSupport.h on the node itself: no method of the node set casts,
// and a node is always a UI_Node, so the conversion error never comes from these.

// call(node) for its effect; no result.
template <class Call> int CallOnNode(lua_State* L, const char* name, Call call) {
    return CallOnControl<zebui::ui::UI_Node>(L, name, call);
}

// push(L, query(node)), once the node has let go.
template <class Query, class Push>
int PushNodeAnswer(lua_State* L, const char* name, Query query, Push push) {
    return PushControlAnswer<zebui::ui::UI_Node>(L, name, query, push);
}

// What query(node) answers, pushed as a boolean or a number.
template <class Query> int AnswerOfNode(lua_State* L, const char* name, Query query) {
    return AnswerOfControl<zebui::ui::UI_Node>(L, name, query);
}

// A new wrapper of the node that find(control) answers (an intrusive_ptr to a node);
// nothing for null. The control of argument 1 is taken as a T, as the other helpers take
// it, and held for find.
template <class T = zebui::ui::UI_Node, class Find>
int PushFoundNode(lua_State* L, const char* name, Find find) {
    if (!CastControlNode<T>(L, 1)) return 0;
    PrepareWrapperPush(L);  // may run script, so the control is taken after it
    T* control = CastControlNode<T>(L, 1);
    if (!control) return 0;
    const bool pushed = utility::RunNative(L, name, [&] {
        const auto held = HoldNode(control);
        return FinishWrapperPush(L, find(*control));
    });
    if (!pushed) return lua_error(L);
    return lua_isnil(L, -1) ? 0 : 1;
}

}  // namespace ui
}  // namespace zeblua
