// A number shown as text that the user changes by dragging, or by typing in place.
#include "zebui/controls/UI_HotTextNumber.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "zebui/controls/UI_InteractiveControlChangedMessage.h"
#include "zebui/controls/UI_TextEdit.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MessageFunctionAdapter.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zebui {
namespace controls {
namespace {

constexpr int kMostDecimalPlaces = 15;
const zebcore::UTF16String kFromValue = u"???";

zebcore::UTF16String formatNumber(double value, int places) {
    char text[400];  // the widest double at 15 places
    std::snprintf(text, sizeof text, "%.*f", places, value);
    return zebcore::utility::UTF8to16(text);
}

}  // namespace

UI_HotTextNumber::UI_HotTextNumber()
    : mInPlaceEditTimerID(ui::UI_NodeManager::Get(false)->GetUniqueTimerID()),
      mRange(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()) {
    UpdateStringFromValue();
}

UI_HotTextNumber::~UI_HotTextNumber() = default;

void UI_HotTextNumber::SetValue(double value) {
    if (std::isnan(value)) return;
    ChangeValue(mValue, mRange.Clamp(value));
}

void UI_HotTextNumber::StoreValue(double value) {
    if (!std::isnan(value)) ChangeValue(mValue, value);
}

void UI_HotTextNumber::SetMinValue(double minimum) {
    if (mRange.SetMinimum(minimum)) SetValue(mValue);  // within the new bounds
}

void UI_HotTextNumber::SetMaxValue(double maximum) {
    if (mRange.SetMaximum(maximum)) SetValue(mValue);
}

void UI_HotTextNumber::SetDecimalPlaces(int places) {
    mDecimalPlaces = std::clamp(places, 0, kMostDecimalPlaces);
    UpdateStringFromValue();
}

void UI_HotTextNumber::SetIncrement(double increment) {
    if (!std::isnan(increment)) mIncrement = increment;
}

void UI_HotTextNumber::UI_TrackPointer(InteractiveChangePhase phase,
                                       const zebcore::geom::PointT<float>& where) {
    if (phase == kInteractiveChange_Begin) {
        mDrag = DragStart{where, mValue};
        mMovedSincePress = false;
        return;
    }
    if (where.x != mDrag.where.x || where.y != mDrag.where.y) mMovedSincePress = true;
    const double steps = std::trunc(mDrag.Travel(where) / kUnitsPerStep);
    if (std::isfinite(steps)) SetValue(mDrag.value + steps * mIncrement);
}

bool UI_HotTextNumber::UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) {
    const bool pressed = IsInInteractiveChange();
    const auto keep = ui::KeepNodeAlive(this);
    if (!UI_HotText::UI_DoMouseEvent(target, event)) return false;
    // Only a release that ended this control's own press, with no movement in between,
    // is a click; the press itself began with the pointer on the control.
    if (pressed && event.GetAction() == ui::kMouseAction_Up && !mMovedSincePress && !IsDisabled())
        BeginInPlaceEdit(true, ui::kFocusChangeReason_Mouse, kFromValue);
    return true;
}

bool UI_HotTextNumber::UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) {
    const auto keep = ui::KeepNodeAlive(this);
    if (UI_HotText::UI_DoKeyboardEvent(target, event)) return true;
    if (event.GetAction() != ui::kKeyboardAction_Down) return false;
    const unsigned int code = event.GetCode().GetValue(true);
    UI_TextEdit* edit = GetInPlaceEdit();
    if (edit && target == edit && IsEditingInPlace()) {
        // The box leaves Return and Escape to its parent.
        const boost::intrusive_ptr<ui::UI_Node> keepEdit(edit);
        if (code == ui::kKeyCode_Return)
            edit->FinishInteractiveChange();
        else if (code == ui::kKeyCode_Escape)
            edit->CancelInteractiveChange();
        else
            return false;
        return true;
    }
    if (target != this || !mWantsKeyboardFocus || IsDisabled()) return false;
    const zebcore::UTF16String& characters = event.GetCharacters();
    const bool printable = !characters.empty() && characters[0] >= 0x20 && characters[0] != 0x7F;
    if (!printable) return false;
    BeginInPlaceEdit(true, ui::kFocusChangeReason_Unspecified, characters);
    return true;
}

bool UI_HotTextNumber::UI_DoTimerNotify(int id) {
    if (id != mInPlaceEditTimerID) return UI_HotText::UI_DoTimerNotify(id);
    const auto keep = ui::KeepNodeAlive(this);
    RemoveInPlaceEdit(true);
    return true;
}

void UI_HotTextNumber::SendValueChangedMessage() {
    UpdateStringFromValue();
    UI_HotText::SendValueChangedMessage();
}

void UI_HotTextNumber::UpdateStringFromValue() {
    SetText(formatNumber(mValue, mDecimalPlaces));
}

void UI_HotTextNumber::UpdateEditFromValue() {
    if (UI_TextEdit* edit = GetInPlaceEdit())
        edit->SetValue(formatNumber(GetValue(), mDecimalPlaces));
}

void UI_HotTextNumber::UpdateValueFromEdit() {
    const UI_TextEdit* edit = GetInPlaceEdit();
    if (!edit) return;
    const std::string text = zebcore::utility::UTF16to8(edit->GetValue());
    const char* start = text.c_str();
    char* end = nullptr;
    errno = 0;
    const double value = std::strtod(start, &end);
    while (end && (*end == ' ' || *end == '\t'))
        ++end;
    if (end == start || *end != '\0' || errno == ERANGE || !std::isfinite(value)) return;
    SetValue(value);
}

bool UI_HotTextNumber::IsEditingInPlace() const {
    const UI_TextEdit* edit = GetInPlaceEdit();
    return edit && edit->UI_IsShown();
}

UI_TextEdit* UI_HotTextNumber::GetInPlaceEdit() const {
    return ChildSize() > 0 ? dynamic_cast<UI_TextEdit*>(ChildGet(0).get()) : nullptr;
}

void UI_HotTextNumber::BeginInPlaceEdit(bool, ui::FocusChangeReason,
                                        const zebcore::UTF16String& text) {
    RemoveInPlaceEdit(false);
    OpenInPlaceEdit(new UI_TextEdit(0, 0), text,
                    ui::BindMessageFunction(this, &UI_HotTextNumber::inPlaceEditChanged));
}

void UI_HotTextNumber::OpenInPlaceEdit(UI_TextEdit* edit, const zebcore::UTF16String& text,
                                       const ui::MessageFunctionP& listener) {
    const boost::intrusive_ptr<UI_TextEdit> box(edit);
    ++mInPlaceEditGuard;  // on every exit, so the box's listener ignores the setup
    struct Lower {
        int& guard;
        ~Lower() { --guard; }
    } lower{mInPlaceEditGuard};
    // The control's own size at its own origin: a child's frame is in the control's
    // coordinates, so the box covers the control exactly.
    const zebcore::geom::RectT<float> frame = UI_GetLocalRectF(false);
    box->UI_SetLocalRectF({0, 0, frame.width, frame.height});
    ChildPushBack(box);
    box->UI_Show(true);
    box->UI_GainKeyboardFocus(ui::kFocusChangeReason_Program);
    box->SelectAll();
    if (text != kFromValue) {
        box->SetValue(text);
        ContinueInteractiveChange(0);
        box->SetSelection(text.size(), text.size());
    } else {
        UpdateEditFromValue();
        box->SetSelection(0, box->GetValue().size());
    }
    box->NotifyWhenChangedInteractively(listener);
}

void UI_HotTextNumber::inPlaceEditChanged(UI_InteractiveControlChangedMessage* message) {
    if (mInPlaceEditGuard <= 0) HandleInPlaceEditPhase(message);
}

void UI_HotTextNumber::HandleInPlaceEditPhase(UI_InteractiveControlChangedMessage* message) {
    const auto keep = ui::KeepNodeAlive(this);
    switch (message->GetChangeMessage()) {
    case kInteractiveChange_Begin:
        BeginInteractiveChange();
        break;
    case kInteractiveChange_Continue:
        ContinueInteractiveChange(0);
        break;
    case kInteractiveChange_Finish:
        UpdateValueFromEdit();
        CloseInPlaceEdit(message->GetControl());
        FinishInteractiveChange();
        break;
    case kInteractiveChange_Cancel:
        CloseInPlaceEdit(message->GetControl());
        CancelInteractiveChange();
        break;
    default:
        break;
    }
}

void UI_HotTextNumber::CloseInPlaceEdit(ui::UI_Node* box) {
    const bool boxHadFocus = box && box->UI_HasKeyboardFocus(true);
    if (box) box->UI_Show(false);
    UI_InstallTimer(kInPlaceEditRemovalSeconds, mInPlaceEditTimerID);
    UI_Invalidate(nullptr, 0);
    // The focus the box took comes back, so the next key reaches the control again. Last,
    // as focus listeners may run script.
    if (boxHadFocus) UI_GainKeyboardFocus(ui::kFocusChangeReason_Program);
}

void UI_HotTextNumber::RemoveInPlaceEdit(bool removeTimer) {
    if (ChildSize() > 0) {
        if (UI_TextEdit* edit = GetInPlaceEdit()) ChildRemove(edit);
        UI_RemoveTimer(mInPlaceEditTimerID, false);
    } else if (removeTimer) {
        UI_RemoveTimer(mInPlaceEditTimerID, false);
    }
}

}  // namespace controls
}  // namespace zebui
