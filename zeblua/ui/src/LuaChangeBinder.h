// What the two change notification binders share: their functions and their listener.
#pragma once

#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zeblua/ui/src/LuaBinder.h"
#include "zeblua/ui/src/LuaFunctionEntry.h"
#include "zebui/ui/NodeFunctions.h"

struct lua_State;

namespace zeblua {
namespace ui {

// Lives in its slot of the node's LuaBindingTable, so it dies with the node (or when a
// host replaces the node's user data). It listens to the control from its making, once,
// however many functions are added, through a function that holds a plain pointer to the
// binder; the control keeps that function until it dies. So the destructor empties the
// function, and the control skips an empty listener: once the binder is gone nothing
// reaches it, whatever outlives it.
//
// Only the first function added is ever called; the later ones are kept and never run.
// Registry references stay until the state closes, as the node may outlive the state.
class LuaChangeBinder : public LuaBinder {
public:
    ~LuaChangeBinder() override;

    // Appends the function at reference, to run on the main thread of L's universe. False
    // when that thread is unknown; the caller still owns reference.
    bool AddFunction(lua_State* L, int reference);

protected:
    LuaChangeBinder();

    // Keeps the listener that the subclass gives the control, to empty it at the end;
    // answers it.
    const zebui::ui::MessageFunctionP& Listen(const zebui::ui::MessageFunctionP& listener);

    // call(entry) with a copy of the first function (its call may add functions), the
    // binder held meanwhile; nothing when there is none.
    template <class Call> void CallFirstFunction(Call call) {
        if (mFunctions.empty()) return;
        const LuaFunctionEntry entry = mFunctions.front();
        const boost::intrusive_ptr<LuaBinder> keep(this);  // a host may replace the user data
        call(entry);
    }

private:
    std::vector<LuaFunctionEntry> mFunctions;
    zebui::ui::MessageFunctionP mListener;
};

// The binder in slot of node's binding table, made by make when the slot is empty. Null
// only without a node. The table holds it; the caller holds the node.
LuaChangeBinder* ChangeBinderOf(zebui::ui::UI_Node* node, int slot,
                                LuaChangeBinder* (*make)(zebui::ui::UI_Node* node));

// Adds the function at reference (of L's universe) to the Binder in slot of control's
// binding table, a Binder(control) made on the first call. False, with reference still the
// caller's, when the universe's main thread is unknown.
template <class Binder, class T>
bool AddChangeFunction(lua_State* L, T* control, int slot, int reference) {
    LuaChangeBinder* binder =
        ChangeBinderOf(control, slot, [](zebui::ui::UI_Node* node) -> LuaChangeBinder* {
            return new Binder(static_cast<T*>(node));
        });
    return binder && binder->AddFunction(L, reference);
}

}  // namespace ui
}  // namespace zeblua
