// A number shown as text that the user changes by dragging, or by typing in place.
#pragma once

#include "zebui/controls/UI_HotText.h"
#include "zebui/controls/ValueRange.h"
#include "zebui/ui/InputCodes.h"

namespace zebui {
namespace controls {

class UI_InteractiveControlChangedMessage;
class UI_TextEdit;

// The value stays within its bounds: a value outside is clamped, a bound that moves past
// the value takes it along, and a bound set past the other bound moves that one too. A NaN
// value or bound is refused. The text shows the value with its decimal places.
//
// A drag changes the value by one increment for every kUnitsPerStep units the pointer
// moves right or up from where the press began (left or down lowers it), each step
// reported as a change of value before the phase.
//
// Typing in place: a click that ends where it began (after its finish phase), or a
// printable key while the control has the focus, opens an edit box over the control as
// its child 0 (BeginInPlaceEdit, "???" for a click, the typed characters for a key).
// Return in the box finishes the edit (the box's finish phase), Escape cancels it (its
// cancel phase). A finish takes the text as the value (UpdateValueFromEdit); both then
// hide the box, and a timer of kInPlaceEditRemovalSeconds removes it, since the box is
// still delivering its message when it closes. A new edit removes a closing box at once.
// A disabled control opens no edit from a click or a key.
class UI_HotTextNumber : public UI_HotText {
public:
    static constexpr float kUnitsPerStep = 4.0f;
    static constexpr float kInPlaceEditRemovalSeconds = 1.0f;

    UI_HotTextNumber();
    ~UI_HotTextNumber() override;

    virtual double GetValue() const { return mValue; }
    virtual void SetValue(double value);
    void SetMinValue(double minimum);
    void SetMaxValue(double maximum);
    double GetMinValue() const { return mRange.GetMinimum(); }
    double GetMaxValue() const { return mRange.GetMaximum(); }
    void SetNumericInput(bool numeric) { mNumericInput = numeric; }
    bool GetNumericInput() const { return mNumericInput; }
    // 0 to 15; others are brought into that range.
    void SetDecimalPlaces(int places);
    int GetDecimalPlaces() const { return mDecimalPlaces; }
    double GetIncrement() const { return mIncrement; }
    void SetIncrement(double increment);
    // Whether a printable key opens an edit while the control has the focus.
    virtual void SetWantsKeyboardFocus(bool wants) { mWantsKeyboardFocus = wants; }
    bool GetWantsKeyboardFocus() const { return mWantsKeyboardFocus; }

    // Shows the new value's text before the listeners hear of it.
    void SendValueChangedMessage() override;

    // Opens the edit box. text "???" starts it from the value, all selected; any other
    // text starts it from that text, the caret behind it. flag and reason are the
    // caller's account of why; the plain control uses neither.
    virtual void BeginInPlaceEdit(bool flag, ui::FocusChangeReason reason,
                                  const zebcore::UTF16String& text);
    // While an edit box is open and not yet closing.
    bool IsEditingInPlace() const override;

    bool UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) override;
    bool UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) override;
    // The removal timer's id removes the closing box; others go to the base.
    bool UI_DoTimerNotify(int id) override;

protected:
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;
    // Shows the value as text.
    virtual void UpdateStringFromValue();
    // Puts the value's text into the edit box.
    virtual void UpdateEditFromValue();
    // Takes the edit box's text as the value when it reads as a number.
    virtual void UpdateValueFromEdit();

    // Stores value as it is, without the bounds, and reports a change.
    void StoreValue(double value);
    // The edit box, open or closing; null when there is none.
    UI_TextEdit* GetInPlaceEdit() const;
    // Puts edit over the control as its child, with the focus and text as
    // BeginInPlaceEdit says, and makes listener hear its phases. The guard is raised
    // meanwhile.
    void OpenInPlaceEdit(UI_TextEdit* edit, const zebcore::UTF16String& text,
                         const ui::MessageFunctionP& listener);
    // Acts on a phase of the edit box: begin and continue pass on as this control's
    // phases; finish takes the value, closes the box and finishes; cancel closes and
    // cancels.
    void HandleInPlaceEditPhase(UI_InteractiveControlChangedMessage* message);
    // Hides box and starts the removal timer.
    void CloseInPlaceEdit(ui::UI_Node* box);
    // Removes the box if there is one, with its timer; without a box the timer goes only
    // when removeTimer is true.
    void RemoveInPlaceEdit(bool removeTimer);

    // Above 0 while an edit box is being set up: its phases then are the setup's own.
    int mInPlaceEditGuard = 0;
    // The removal timer's id, unique to this control.
    const int mInPlaceEditTimerID;

private:
    void inPlaceEditChanged(UI_InteractiveControlChangedMessage* message);

    double mValue = 0;
    ValueRange mRange;
    double mIncrement = 1;
    int mDecimalPlaces = 0;
    bool mNumericInput = true;
    bool mWantsKeyboardFocus = false;
    DragStart mDrag;
    bool mMovedSincePress = false;
};

}  // namespace controls
}  // namespace zebui
