// A text button with a triangle that shows whether something is open.
#pragma once

#include "zebui/controls/UI_TextButton.h"

namespace zebui {
namespace controls {

// A click toggles it as any button's does; on means open. It has no chrome: the triangle
// points right while closed and down while open, and the label follows it.
class UI_DisclosureTriangleButton : public UI_TextButton {
public:
    UI_DisclosureTriangleButton();
    ~UI_DisclosureTriangleButton() override;

    // Seconds the triangle takes to turn; kept for the toolkit's animation, which the
    // stand-in does not run (it turns at once).
    void SetTwirlDuration(double seconds) { mTwirlDuration = seconds; }
    double GetTwirlDuration() const { return mTwirlDuration; }

    // Right of the triangle's square, less the text indent.
    zebcore::geom::RectT<float> GetLabelTextRect() const override;

protected:
    bool DrawsContainer() const override { return false; }
    bool DrawsBorder() const override { return false; }
    // The triangle in a square at the left, in place of the button's face, then the label.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    double mTwirlDuration = 0;
};

}  // namespace controls
}  // namespace zebui
