// A push button.
#include "zebui/controls/UI_Button.h"

#include <algorithm>
#include <cmath>

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

namespace {

using zebcore::geom::RectT;

// The face under a press in progress: darker than the raised face.
const inkwell::ColorRGBA kPressedFill(0.70f, 0.72f, 0.76f);

// A size that draws: NaN and negatives as 0, at most limit.
float drawable(float size, float limit) {
    return std::isnan(size) ? 0 : std::clamp(size, 0.0f, std::max(limit, 0.0f));
}

RectT<float> inset(const RectT<float>& rect, float by) {
    return RectT<float>(rect.left + by, rect.top + by, rect.width - 2 * by, rect.height - 2 * by);
}

}  // namespace

UI_Button::UI_Button() = default;

UI_Button::~UI_Button() = default;

void UI_Button::SetValue(ButtonValue value) {
    if (value != mValue) UI_Invalidate(nullptr, 0);
    ChangeValue(mValue, value);
}

void UI_Button::SetContentOffset(const zebcore::geom::PointT<float>& offset) {
    mContentOffset = offset;
    UI_Invalidate(nullptr, 0);
}

void UI_Button::SetCornerRadius(float radius) {
    mCornerRadius = radius;
    UI_Invalidate(nullptr, 0);
}

void UI_Button::SetStrokeSizes(const std::pair<float, float>& sizes) {
    mStrokeSizes = sizes;
    UI_Invalidate(nullptr, 0);
}

void UI_Button::CancelInteractiveChange() {
    const auto keep = ui::KeepNodeAlive(this);
    setPressed(false);
    if (mSpringLoaded) SetValue(kButtonValue_Off);
    UI_InteractiveControlView::CancelInteractiveChange();
}

bool UI_Button::UI_GainKeyboardFocus(ui::FocusChangeReason reason) {
    if (reason == ui::kFocusChangeReason_Mouse && !mChangeFocusOnClick) return false;
    return UI_InteractiveControlView::UI_GainKeyboardFocus(reason);
}

bool UI_Button::UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) {
    return UI_InteractiveControlView::UI_DoKeyboardEvent(target, event) ||
           PressOnSpace(target, event);
}

void UI_Button::UI_TrackPointer(InteractiveChangePhase phase,
                                const zebcore::geom::PointT<float>& where) {
    const bool over = ContainsLocalPoint(where);
    switch (phase) {
    case kInteractiveChange_Begin:
        setPressed(true);
        if (mSpringLoaded)
            SetValue(kButtonValue_On);
        else if (mNotificationOnMouseDown)
            toggle();
        break;
    case kInteractiveChange_Continue:
        setPressed(over);
        if (mSpringLoaded) SetValue(over ? kButtonValue_On : kButtonValue_Off);
        break;
    case kInteractiveChange_Finish:
        setPressed(false);
        if (mSpringLoaded)
            SetValue(kButtonValue_Off);
        else if (!mNotificationOnMouseDown && over)
            toggle();
        break;
    default:
        break;
    }
}

RectT<float> UI_Button::GetContentRect() const {
    const RectT<float> bounds = face::Bounds(*this);
    const float border = drawable(mStrokeSizes.first, std::min(bounds.width, bounds.height) / 2);
    RectT<float> content = DrawsBorder() || hasLook(kInsetUndrawn) ? inset(bounds, border) : bounds;
    // A script's NaN or infinity would put the content nowhere: it stays in place.
    if (std::isfinite(mContentOffset.x)) content.left += mContentOffset.x;
    if (std::isfinite(mContentOffset.y)) content.top += mContentOffset.y;
    return content;
}

bool UI_Button::DrawsContainer() const {
    if (hasLook(kContainerNever)) return false;
    return hasLook(kContainerAlways) || !(hasLook(kChromeless) && inNormalState());
}

bool UI_Button::DrawsBorder() const {
    if (hasLook(kBorderNever)) return false;
    return hasLook(kBorderAlways) || !(hasLook(kChromeless) && inNormalState());
}

void UI_Button::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const RectT<float> bounds = face::Bounds(*this);
    const float half = std::min(bounds.width, bounds.height) / 2;
    const float radius = drawable(mCornerRadius, half);
    const float border = DrawsBorder() ? drawable(mStrokeSizes.first, half) : 0;
    if (DrawsContainer()) {
        const bool on = mValue == kButtonValue_On && !IsValueUnknown();
        face::FillRoundRect(inkwell, bounds, radius,
                            mPressed ? kPressedFill
                            : on     ? face::kAccent
                                     : face::kFaceFill);
    }
    if (mValue == kButtonValue_Mixed || IsValueUnknown()) {
        const float bar = std::max(2.0f, bounds.height / 8);
        face::FillRoundRect(
            inkwell,
            RectT<float>(bounds.width / 4, (bounds.height - bar) / 2, bounds.width / 2, bar), 0,
            face::kAccent);
    }
    if (border > 0) face::EdgeRoundRect(inkwell, bounds, radius, border, face::kFaceEdge);
    if (hasLook(kInnerBevel))
        face::EdgeRoundRect(inkwell, inset(bounds, border), std::max(radius - border, 0.0f),
                            drawable(mStrokeSizes.second, half - border), face::kFieldFill);
}

void UI_Button::setLook(Look look, bool on) {
    mLook = on ? mLook | look : mLook & ~look;
    UI_Invalidate(nullptr, 0);
}

bool UI_Button::inNormalState() const {
    return mValue != kButtonValue_On && !mPressed && !UI_IsMouseOver(false);
}

void UI_Button::setPressed(bool pressed) {
    if (pressed == mPressed) return;
    mPressed = pressed;
    UI_Invalidate(nullptr, 0);
}

void UI_Button::toggle() {
    SetValue(mValue == kButtonValue_On ? kButtonValue_Off : kButtonValue_On);
}

}  // namespace controls
}  // namespace zebui
