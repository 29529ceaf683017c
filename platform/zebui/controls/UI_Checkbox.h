// A check box.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

// A click toggles it: the up of a press that began on the box, inside the box. The new
// value is reported before the change's finish.
class UI_Checkbox : public UI_InteractiveControlView {
public:
    UI_Checkbox();
    ~UI_Checkbox() override;

    bool IsChecked() const { return mChecked; }
    void SetChecked(bool checked);

protected:
    // A box at the left, as tall as the control up to 14 units.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;

private:
    bool mChecked = false;
};

}  // namespace controls
}  // namespace zebui
