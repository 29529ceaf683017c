// An undo step whose undo and redo are methods of a script's table.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zeblua/utility/src/StateBound.h"
#include "zebundo/Action.h"

struct lua_State;

namespace zeblua {
namespace undo {

// data is the registry reference of the script's table as decimal text, owned from
// construction on and released by the destructor; empty data means no table. Undo calls
// table:handleActionUndo(), redo table:handleActionRedo(), each with the table as its only
// argument; a missing method or an error is dropped. Each call runs in a protected frame
// of its own, so the native code that undoes keeps its Lua stack.
//
// When the state closes first, the action is detached and the undo history is cleared,
// so nothing calls into the closed state.
class LuaAction : public zebundo::Action, public utility::StateBound {
public:
    LuaAction(bool inUndoable, bool inChangesDocument, const zebcore::UTF8String& description,
              const zebcore::UTF8String& data, lua_State* L);
    ~LuaAction() override;

    // Registers the empty global table zebUndoAction and leaves it on the stack; returns 1.
    static int InitLua(lua_State* L);

protected:
    void UndoSelf() override;
    void RedoSelf() override;
    void OnStateClosing() override;

private:
    void InvokeAction(const char* inAction);
    int reference() const;

    zebcore::UTF8String mData;
};

// Calls method of the table behind reference on L with the table as its only argument, in
// a protected frame: nothing when the reference leads to no table; an error is dropped.
void CallTableMethod(lua_State* L, int reference, const char* method);

}  // namespace undo
}  // namespace zeblua
