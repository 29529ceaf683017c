// A scroll bar.
#pragma once

#include "zebui/controls/UI_SliderT.h"
#include "zebui/controls/ValueRange.h"

namespace zebui {
namespace controls {

// The value is a pair: the start and end of the part shown, within the extent (0 to 0.25
// of 0 to 1 at the start). Its length, the end less the start, is kept while the pair is
// clamped: a pair past an end of the extent slides back inside, and only a pair longer than
// the extent is cut to it. A drag moves the pair as far as the pointer goes along the bar,
// in the extent's units.
class UI_ScrollBar : public UI_SliderT<float> {
public:
    UI_ScrollBar();
    ~UI_ScrollBar() override;

    Pair GetValue() const { return mValue; }
    // A pair given end first is put in order; one holding NaN is refused.
    void SetValue(const Pair& value);
    // The lowest and highest start the pair can have.
    Pair GetValueRange() const;
    // Moves the pair towards the extent's upper end (forward) or lower end, by amount units,
    // or by amount lengths of the pair (byPage).
    void DoScroll(bool forward, bool byPage, float amount);

protected:
    void ExtentChanged() override;
    // A groove the length of the bar and a thumb over the part shown.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;

private:
    Pair mValue{0.0f, 0.25f};
    DragStart mDrag;
};

}  // namespace controls
}  // namespace zebui
