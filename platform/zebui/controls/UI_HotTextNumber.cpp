// A number shown as text that the user changes by dragging.
#include "zebui/controls/UI_HotTextNumber.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

namespace zebui {
namespace controls {
namespace {

constexpr int kMostDecimalPlaces = 15;

}  // namespace

UI_HotTextNumber::UI_HotTextNumber()
    : mRange(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()) {
    UpdateStringFromValue();
}

UI_HotTextNumber::~UI_HotTextNumber() = default;

void UI_HotTextNumber::SetValue(double value) {
    if (std::isnan(value)) return;
    ChangeValue(mValue, mRange.Clamp(value));
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
        return;
    }
    const double steps = std::trunc(mDrag.Travel(where) / kUnitsPerStep);
    if (std::isfinite(steps)) SetValue(mDrag.value + steps * mIncrement);
}

void UI_HotTextNumber::SendValueChangedMessage() {
    UpdateStringFromValue();
    UI_HotText::SendValueChangedMessage();
}

void UI_HotTextNumber::UpdateStringFromValue() {
    char text[400];  // the widest double at 15 places
    std::snprintf(text, sizeof text, "%.*f", mDecimalPlaces, mValue);
    SetText(zebcore::utility::UTF8to16(text));
}

}  // namespace controls
}  // namespace zebui
