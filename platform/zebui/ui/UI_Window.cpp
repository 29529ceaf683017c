// Windows: ownership and activation.
#include "zebui/ui/UI_Window.h"

#include <algorithm>

#include <boost/intrusive_ptr.hpp>

#include "zebui/ui/UI_NodeManager.h"

namespace zebui {
namespace ui {
namespace {

UI_Window* sActive = nullptr;

}  // namespace

UI_Window::UI_Window() = default;

UI_Window::~UI_Window() {
    SetOwner(nullptr);
    for (UI_Window* owned : mOwned)
        owned->mOwner = nullptr;
    if (sActive == this) sActive = nullptr;
}

void UI_Window::SetOwner(UI_Window* owner) {
    if (owner == this) return;
    if (mOwner) {
        auto& list = mOwner->mOwned;
        list.erase(std::remove(list.begin(), list.end(), this), list.end());
    }
    mOwner = owner;
    if (mOwner) mOwner->mOwned.push_back(this);
}

void UI_Window::UI_Activate() {
    activate(kWindowActivation_ACTIVATED);
}

void UI_Window::ActivateByClick() {
    activate(kWindowActivation_CLICK_ACTIVATED);
}

bool UI_Window::IsActive() const {
    return sActive == this;
}

UI_Window* UI_Window::GetActiveWindow() {
    return sActive;
}

// Both windows are held for the reports, which may run script that drops them.
void UI_Window::activate(int activation) {
    if (sActive == this) return;
    const boost::intrusive_ptr<UI_Node> keepThis(this);
    const boost::intrusive_ptr<UI_Node> keepOld(sActive);
    UI_Window* old = sActive;
    sActive = this;
    if (old) old->UI_ActivationChanged(kWindowActivation_DEACTIVATED);
    if (sActive != this) return;  // the report activated another window
    UI_ActivationChanged(activation);
    if (sActive == this && UI_WantsKeyboardFocus() && !UI_HasKeyboardFocus(true))
        UI_NodeManager::Get(false)->SetKeyboardFocus(this, kFocusChangeReason_Program);
}

void UI_Window::UI_ActivationChanged(int /*activation*/) {}

bool UI_Window::UI_WantsKeyboardFocus() const {
    return false;
}

bool UI_Window::UI_SupportsInkwell() const {
    return false;
}

bool UI_Window::UI_CloseIfPopup() {
    return false;
}

void UI_Window::UI_DuringClose() {}

}  // namespace ui
}  // namespace zebui
