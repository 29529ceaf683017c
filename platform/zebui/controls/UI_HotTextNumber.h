// A number shown as text that the user changes by dragging.
#pragma once

#include "zebui/controls/UI_HotText.h"
#include "zebui/controls/ValueRange.h"

namespace zebui {
namespace controls {

// The value stays within its bounds: a value outside is clamped, a bound that moves past
// the value takes it along, and a bound set past the other bound moves that one too. A NaN
// value or bound is refused. The text shows the value with its decimal places.
//
// A drag changes the value by one increment for every kUnitsPerStep units the pointer
// moves right or up from where the press began (left or down lowers it), each step
// reported as a change of value before the phase.
class UI_HotTextNumber : public UI_HotText {
public:
    static constexpr float kUnitsPerStep = 4.0f;

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

    // Shows the new value's text before the listeners hear of it.
    void SendValueChangedMessage() override;

protected:
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;
    // Shows the value as text.
    virtual void UpdateStringFromValue();

private:
    double mValue = 0;
    ValueRange mRange;
    double mIncrement = 1;
    int mDecimalPlaces = 0;
    bool mNumericInput = true;
    DragStart mDrag;
};

}  // namespace controls
}  // namespace zebui
