// A popup window whose keyboard, activation, close and command events go to Lua functions.
#pragma once

#include "vex/uisupport/CommandHandler.h"
#include "zeblua/utility/src/LuaBindery.h"
#include "zeblua/utility/src/StateBound.h"
#include "zebui/ui/OS_Window.h"

struct lua_State;

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell
}  // namespace zebui

namespace zeblua {
namespace ui {

// The names a script binds with BindPopupWindowOperation.
extern const char* const kUIKeyboardEvent;       // "uiKeyboardEvent"
extern const char* const kUI_ActivationChanged;  // "UI_ActivationChanged"
extern const char* const kOnCloseIfPopup;        // "OnCloseIfPopup"
extern const char* const kDuringClose;           // "duringClose", bound but never called
extern const char* const kCmdHandler;            // "cmdHandler"
extern const char* const kCmdEnablement;         // "cmdEnablement"

// A panel of the platform at the floating level (floating) or the pop-up menu level, with
// a shadow, working while a modal window runs; while shown it is a child window above its
// owner's platform window. It draws with the supplier it was made with and wants the
// keyboard focus. It is a command handler: set as the current one, it is the first of the
// chain.
//
// Each bound function runs on the state's main thread inside a protected frame of its own
// (lua_cpcall): where a handler empties "the frame" it empties that frame only, so a script
// method that led here (a UI_Activate, a posted command) keeps its stack. When the state
// closes first, the bindings are dropped unreleased and nothing calls Lua any more.
class LuaPopupWindow : public zebui::ui::OS_Window,
                       public utility::LuaBindery,
                       public vex::uisupport::CommandHandler,
                       public utility::StateBound {
public:
    LuaPopupWindow(lua_State* L, const zebui::inkwell::SupplierInterface* supplier, bool floating);
    ~LuaPopupWindow() override;

    bool IsFloating() const { return mFloating; }

    void UI_Show(bool show) override;
    bool UI_SupportsInkwell() const override;
    const zebui::inkwell::SupplierInterface* UI_GetDrawSupplier() const override;
    // The bound function first: a true value (an error counts as one) takes the event;
    // otherwise the window's own handling.
    bool UI_DoKeyboardEvent(zebui::ui::UI_Node* target,
                            const zebui::ui::KeyboardEvent& event) override;
    bool UI_WantsKeyboardFocus() const override;
    // The bound function with the activation; the base is never called.
    void UI_ActivationChanged(int activation) override;
    // True only when the bound function answers the boolean true.
    bool UI_CloseIfPopup() override;
    void UI_DuringClose() override;

    // The window is held for its turn in the chain, which may run script that drops it.
    bool HandleCommand(int commandId) override;
    bool CommandEnabled(int commandId, bool& enabled, bool& checked,
                        zebcore::UTF16String& displayString) override;

protected:
    bool DoHandleCommand(int commandId) override;
    bool DoCommandEnabled(int commandId, bool& enabled, bool& checked,
                          zebcore::UTF16String& displayString) override;
    void OnStateClosing() override;

private:
    int boundReference(const char* name) const;

    bool mFloating;
    const zebui::inkwell::SupplierInterface* mSupplier;
};

}  // namespace ui
}  // namespace zeblua
