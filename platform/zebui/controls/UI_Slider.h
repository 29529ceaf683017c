// A linear slider.
#pragma once

#include "zebui/controls/UI_SliderT.h"

namespace zebui {
namespace controls {

// The value stays within the extent. A press or drag puts the value where the pointer is
// along the slider, each change reported before its phase.
class UI_Slider : public UI_SliderT<double> {
public:
    UI_Slider();
    ~UI_Slider() override;

    virtual double GetValue() const { return mValue; }
    // Clamped to the extent; NaN is refused.
    virtual void SetValue(double value);

protected:
    void ExtentChanged() override;
    // A groove along the long axis and a thumb at the value.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;

private:
    double mValue = 0;
};

}  // namespace controls
}  // namespace zebui
