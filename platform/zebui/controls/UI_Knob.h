// A rotary control.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/controls/ValueRange.h"

namespace zebui {
namespace controls {

// The value runs from its minimum to its maximum (0 to 1 at the start), clamped as a hot
// text number's is; the pointer's dot sweeps kSweepDegrees, centred on the top. A drag
// moves the value by the whole range for every kUnitsPerRange units the pointer goes up or
// right from where the press began.
class UI_Knob : public UI_InteractiveControlView {
public:
    static constexpr double kSweepDegrees = 270.0;
    static constexpr float kUnitsPerRange = 100.0f;

    UI_Knob();
    ~UI_Knob() override;

    double GetValue() const { return mValue; }
    virtual void SetValue(double value);
    void SetMinValue(double minimum);
    void SetMaxValue(double maximum);
    double GetMinValue() const { return mRange.GetMinimum(); }
    double GetMaxValue() const { return mRange.GetMaximum(); }

protected:
    // A disc with the accent dot of its pointer.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;

private:
    double mValue = 0;
    ValueRange mRange{0, 1};
    DragStart mDrag;
};

}  // namespace controls
}  // namespace zebui
