// zebCmdAttachment: a script's table taking part in the command chain.
#pragma once

#include "vex/uisupport/CommandHandler.h"
#include "zeblua/utility/src/StateBound.h"

struct lua_State;

namespace zeb {
namespace lua {
namespace uisupport {

// The fields of the tables that doCmdEnable and doCmdHandle return.
extern const char* const sLuaCmdIsHandledProp;         // "isHandled"
extern const char* const sLuaCmdIsEnabledProp;         // "isEnabled"
extern const char* const sLuaCmdIsCheckedProp;         // "isChecked"
extern const char* const sLuaCmdNewDisplayStringProp;  // "newDisplayString"

// Holds the script's table by a registry reference, released when the handler deletes the
// attachment. When the state closes first, the attachment is detached and its handler
// lets it go, so no later command reaches a closed state.
class LuaCmdAttachment : public vex::uisupport::UnifiedDispatchCmdAttachment,
                         public zeblua::utility::StateBound {
public:
    LuaCmdAttachment(int ref, lua_State* L);
    ~LuaCmdAttachment() override;

    // table:doCmdEnable(id) when outs is given, else table:doCmdHandle(id); the answer is
    // the result's isHandled. A missing method, an error or a result that is no table
    // answers false and leaves outs alone. The call runs in a protected frame of its own,
    // so the stack of whatever native call led here is left as it was.
    bool UnifiedDispatch(int commandId, EnableOuts* outs) override;

    // Registers the global table zebCmdAttachment and leaves it on the stack; returns 1.
    static int InitLua(lua_State* L);

protected:
    void OnStateClosing() override;

private:
    int mRef;
};

// Reads a command answer table at index: its isHandled, and when outs is given and the
// command is handled, isEnabled, isChecked and newDisplayString (UTF-8 up to its first zero
// byte, a number as its text) into outs. A value that is no table answers false. Fields run
// their __index and a number's conversion may raise: call it inside a protected frame.
bool ReadCmdAnswer(lua_State* L, int index,
                   const vex::uisupport::UnifiedDispatchBase::EnableOuts* outs);

// Checks the table at index, takes a reference to it and adds a new attachment to
// handler, which owns it. Raises Lua's argument error for a value that is no table.
void installAttachmentIntoHandler(lua_State* L, int index, vex::uisupport::CommandHandler* handler);

}  // namespace uisupport
}  // namespace lua
}  // namespace zeb

extern "C" int luaopen_zeblua_zebCmdAttachment(lua_State* L);
