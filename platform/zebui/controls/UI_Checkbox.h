// A check box.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/controls/UI_TextControlBase.h"

namespace zebui {
namespace controls {

// A click toggles it: the up of a press that began on the box, inside the box. The new
// value is reported before the change's finish. A box whose value is unknown (mixed)
// shows a bar and becomes checked on a click. The label lies right of the box.
class UI_Checkbox : public UI_InteractiveControlView, public UI_TextControlBase {
public:
    UI_Checkbox();
    ~UI_Checkbox() override;

    bool IsChecked() const { return mChecked; }
    void SetChecked(bool checked);

    zebcore::geom::RectT<float> GetLabelTextRect() const override;
    // Space on the focused control presses it (PressOnSpace).
    bool UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) override;

protected:
    // A box at the left, as tall as the control up to 14 units, then the label.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;

private:
    bool mChecked = false;
};

}  // namespace controls
}  // namespace zebui
