// The binder of a node's operations ("uiDraw", "uiMouseEvent", ...) to Lua functions.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zeblua/ui/src/LuaBinder.h"
#include "zeblua/ui/src/LuaFunctionEntry.h"
#include "zebui/ui/InputCodes.h"

struct lua_State;

namespace zebui {
namespace inkwell {
class Inkwell;
}  // namespace inkwell
namespace ui {
class KeyboardEvent;
class MouseEvent;
class UI_Node;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace ui {

// Lives in slot 1 of its node's LuaBindingTable, so it dies with the node (or when the
// node's user data is replaced). The node holds the hooks it installs; each hook reaches
// the binder through a shared cell that the destructor clears, so a hook that outlives
// its binder answers "not taken" and calls nothing. The registry references stay until
// the state closes or a rebinding under the same name releases them: the node may outlive
// the state, and then there would be no state left to release them on.
//
// Each On... member runs the function bound under its name on the entry's state, the main
// thread, in the call form of its operation (ZebOperationCalls.h). The function may rebind
// or drop the node; the hooks hold the binder and the toolkit the node across the call.
class ZebBinder : public LuaBinder {
public:
    explicit ZebBinder(zebui::ui::UI_Node* node);
    ~ZebBinder() override;

    // Binds the function at reference (on L's universe) under name, releasing the one it
    // replaces. The first binding of a known name installs the node's hook for it; a
    // later one only swaps the function. An unknown name is kept and never called. False
    // only when L's universe has no known main thread; the caller still owns reference.
    bool BindZEBOperation(lua_State* L, const std::string& name, int reference);

    bool OnDraw(const zebui::ui::UI_Node* node, zebui::inkwell::Inkwell* inkwell) const;
    bool OnDoMouseEvent(zebui::ui::UI_Node* target, const zebui::ui::MouseEvent& event,
                        bool& handled);
    bool OnDoPreMouseEvent(zebui::ui::UI_Node* target, const zebui::ui::MouseEvent& event,
                           bool& handled);
    bool OnDoKeyboardEvent(zebui::ui::UI_Node* target, const zebui::ui::KeyboardEvent& event,
                           bool& handled);
    bool OnDoCursor(const zebui::ui::UI_Node* node, const zebcore::geom::PointT<float>& where,
                    zebui::ui::ModifierFlags modifiers, bool& handled);
    void OnSizeChanged();
    void OnDoFocusChange(const zebui::ui::UI_Node* node, zebui::ui::FocusChangeReason reason);

private:
    // The first entry under name, copied: the call may rebind and free the map's vector.
    bool findBound(const char* name, LuaFunctionEntry& entry) const;
    void installHook(const std::string& name);

    std::map<std::string, std::vector<LuaFunctionEntry>> mBoundFunctions;
    std::map<std::string, bool> mInstalled;
    zebui::ui::UI_Node* mNode;
    boost::shared_ptr<ZebBinder*> mAlive;  // this, until the destructor clears it
};

// The free entry point for every caller: binds on node's ZebBinder, made in slot 1 of the
// node's binding table if needed. False with no node or no main thread; then the caller
// still owns reference.
bool BindZEBOperation(lua_State* L, zebui::ui::UI_Node* node, const std::string& name,
                      int reference);

}  // namespace ui
}  // namespace zeblua
