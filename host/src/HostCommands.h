// The command chain and the undo history, as scripts and tests reach them.
#pragma once

struct lua_State;

namespace zebhost {

// Adds to the global table zebhost, and opens the empty tables zebUndoAction and
// zebLuaStateRestorer as a host does for its undo code:
//   zebhost.postCommand(id)            -> handled, reachedApp: runs the command chain (the
//                                         current handler, its parents, the application);
//                                         reachedApp tells that the application's own
//                                         handling saw it
//   zebhost.commandState(id [, text])  -> {isHandled, isEnabled, isChecked, displayString}:
//                                         the chain's enable query, starting from disabled,
//                                         unchecked and the display string text ("")
//   zebhost.addUndoAction(t [, description [, undoable [, changesDocument]]])
//                                      -- t becomes a new undo step, as a native action
//                                         holding a registry reference would (flags true)
//   zebhost.addStateRestorer(t [, disabled]) -- t's restoreState joins the newest step
//   zebhost.undo(), zebhost.redo()     -> whether a step was taken back or forward
//   zebhost.undoCounts()               -> undoable steps, redoable steps
//   zebhost.trimUndo(n), zebhost.clearUndo()
void OpenHostCommands(lua_State* L);

}  // namespace zebhost
