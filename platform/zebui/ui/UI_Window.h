// A top-level window of the toolkit: owner and owned windows, activation, and the
// operations a window class may take over.
#pragma once

#include <vector>

#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace ui {

// What a window's activation change reports.
enum WindowActivation {
    kWindowActivation_ACTIVATED = 0,
    kWindowActivation_CLICK_ACTIVATED = 1,
    kWindowActivation_DEACTIVATED = 2,
};

// One window is active at a time. Activating a window first reports DEACTIVATED to the
// window that was active, then the activation to the new one; a window that is active
// already reports nothing. A window that wants the keyboard focus gets it when activated,
// unless the focus is inside it already.
//
// Owners are plain links both ways: a window that dies leaves its owner's list and its
// owned windows lose their owner, and an active window that dies leaves no window active.
class UI_Window : public UI_Node {
public:
    UI_Window();
    ~UI_Window() override;

    // Null detaches the window from its owner; a window can't own itself.
    void SetOwner(UI_Window* owner);
    UI_Window* GetOwner() const { return mOwner; }
    const std::vector<UI_Window*>& GetOwnedWindows() const { return mOwned; }

    virtual void UI_Activate();
    // A click in an inactive window activates it with CLICK_ACTIVATED.
    void ActivateByClick();
    bool IsActive() const;
    static UI_Window* GetActiveWindow();

    // Operations a window class may take over.
    virtual void UI_ActivationChanged(int activation);
    virtual bool UI_WantsKeyboardFocus() const;
    virtual bool UI_SupportsInkwell() const;
    // Asked when something outside the window was clicked: true closes (hides) it.
    virtual bool UI_CloseIfPopup();
    virtual void UI_DuringClose();

private:
    void activate(int activation);

    UI_Window* mOwner = nullptr;
    std::vector<UI_Window*> mOwned;
};

}  // namespace ui
}  // namespace zebui
