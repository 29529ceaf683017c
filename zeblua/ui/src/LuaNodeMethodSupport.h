// What the methods of the node set share: flag defaults, calls on a held node, answers.
#pragma once

#include <type_traits>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

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

// Every helper below takes the node of argument 1 when it is called, so a method calls it
// once all its arguments are read (ControlNodeCast.h), and answers nothing for a released
// or ended wrapper. The node is held for the call, which may reach Lua and drop every other
// reference; the wrapper is never touched after it.

// call(node) for its effect; no result.
template <class Call> int CallOnNode(lua_State* L, const char* name, Call call) {
    zebui::ui::UI_Node* node = LiveNode(L, 1);
    if (!node) return 0;
    return utility::RunNative(L, name, [&] {
        const NodeP held(node);
        call(*held);
        return 0;
    });
}

// push(L, query(node)), once the node has let go: push may run script (a geometry
// constructor) and may raise.
template <class Query, class Push>
int PushNodeAnswer(lua_State* L, const char* name, Query query, Push push) {
    zebui::ui::UI_Node* node = LiveNode(L, 1);
    if (!node) return 0;
    const auto answer = utility::RunNative(L, name, [&] {
        const NodeP held(node);
        return query(*held);
    });
    return push(L, answer);
}

// What query(node) answers, pushed as a boolean or an integer.
template <class Query> int AnswerOfNode(lua_State* L, const char* name, Query query) {
    return PushNodeAnswer(L, name, query, [](lua_State* state, auto answer) {
        if constexpr (std::is_same<decltype(answer), bool>::value)
            lua_pushboolean(state, answer);
        else
            lua_pushinteger(state, static_cast<lua_Integer>(answer));
        return 1;
    });
}

// A new wrapper of the node that find(node) answers (a NodeP); nothing for null.
template <class Find> int PushFoundNode(lua_State* L, const char* name, Find find) {
    if (!LiveNode(L, 1)) return 0;
    PrepareWrapperPush(L);  // may run script, so the node is taken after it
    zebui::ui::UI_Node* node = LiveNode(L, 1);
    if (!node) return 0;
    const bool pushed = utility::RunNative(L, name, [&] {
        const NodeP held(node);
        return FinishWrapperPush(L, find(*held));
    });
    if (!pushed) return lua_error(L);
    return lua_isnil(L, -1) ? 0 : 1;
}

}  // namespace ui
}  // namespace zeblua
