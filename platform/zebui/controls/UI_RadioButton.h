// A radio button.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/controls/UI_TextControlBase.h"

namespace zebui {
namespace controls {

class UI_RadioGroup;

// The toolkit's radio values; a script sees only whether the value is on.
enum RadioValue : int {
    kRadioValue_Off = 0,
    kRadioValue_On = 1,
    kRadioValue_Mixed = 2,
};

// A click switches it on (the up of a press that began on it, inside it); a click on a
// button that is on changes nothing. A button belongs to the nearest radio group above it,
// if any: switching it on switches every other button of that group off first, so no two
// are ever on together, even inside a change function. The label lies right of the button.
class UI_RadioButton : public UI_InteractiveControlView, public UI_TextControlBase {
public:
    UI_RadioButton();
    ~UI_RadioButton() override;

    virtual void SetValue(RadioValue value);
    RadioValue GetValue() const { return mValue; }

    // The nearest radio group above the button; null when none is.
    UI_RadioGroup* GetRadioGroup() const;

    zebcore::geom::RectT<float> GetLabelTextRect() const override;
    // Space on the focused control presses it (PressOnSpace).
    bool UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) override;

protected:
    // A round button at the left, as tall as the control up to 14 units, then the label.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;

private:
    friend class UI_RadioGroup;

    // The value change alone, the group left out: the group switching its others off.
    void changeValue(RadioValue value);

    RadioValue mValue = kRadioValue_Off;
};

}  // namespace controls
}  // namespace zebui
