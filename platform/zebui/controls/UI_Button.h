// A push button: the base of the button family.
#pragma once

#include <utility>

#include "zebcore/geom/PointT.h"
#include "zebcore/geom/RectT.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

// The toolkit's button values; a script sees only whether the value is on.
enum ButtonValue : int {
    kButtonValue_Off = 0,
    kButtonValue_On = 1,
    kButtonValue_Mixed = 2,
};

// A click (a press and a release on the button) toggles the value between off and on; a
// mixed value becomes on. With notification on mouse down the press toggles it and the
// release does nothing. A spring-loaded button holds no value of its own: it is on while a
// press on it lasts and the pointer is over it, and off again at the release, whatever the
// notification flag says. Each change goes through ChangeValue, as a script's does.
//
// The look: a container (the fill) edged by a border of the first stroke size, with an
// optional inner bevel outline of the second stroke size just inside the border. In the
// normal state (off, not pressed, the pointer elsewhere) a chromeless button draws neither
// container nor border; the Always flags draw them anyway and the Never flags never, Never
// winning over Always. On fills with the accent, a press in progress darkens the face, and a
// mixed or unknown value puts an accent bar across the middle.
class UI_Button : public UI_InteractiveControlView {
public:
    UI_Button();
    ~UI_Button() override;

    virtual void SetValue(ButtonValue value);
    ButtonValue GetValue() const { return mValue; }

    void SetDisplayContainerNever(bool on) { setLook(kContainerNever, on); }
    bool ShouldDisplayContainerNever() const { return hasLook(kContainerNever); }
    void SetDisplayContainerAlways(bool on) { setLook(kContainerAlways, on); }
    bool ShouldDisplayContainerAlways() const { return hasLook(kContainerAlways); }
    void SetDisplayBorderNever(bool on) { setLook(kBorderNever, on); }
    bool ShouldDisplayBorderNever() const { return hasLook(kBorderNever); }
    void SetDisplayBorderAlways(bool on) { setLook(kBorderAlways, on); }
    bool ShouldDisplayBorderAlways() const { return hasLook(kBorderAlways); }
    void SetDisplayChromelessNormalState(bool on) { setLook(kChromeless, on); }
    bool ShouldDisplayChromelessNormalState() const { return hasLook(kChromeless); }
    // Content keeps its place inside the border's width also where no border is drawn.
    void SetInsetUndrawnSpace(bool on) { setLook(kInsetUndrawn, on); }
    bool ShouldInsetUndrawnSpace() const { return hasLook(kInsetUndrawn); }
    void SetDrawInnerBevelOutline(bool on) { setLook(kInnerBevel, on); }
    bool ShouldDrawInnerBevelOutline() const { return hasLook(kInnerBevel); }

    // false: a click leaves the keyboard focus where it was.
    void SetChangeFocusOnClick(bool on) { mChangeFocusOnClick = on; }
    bool GetChangeFocusOnClick() const { return mChangeFocusOnClick; }
    void SetNotificationOnMouseDown(bool on) { mNotificationOnMouseDown = on; }
    bool GetNotificationOnMouseDown() const { return mNotificationOnMouseDown; }
    void SetSpringLoaded(bool on) { mSpringLoaded = on; }
    bool IsSpringLoaded() const { return mSpringLoaded; }

    // Moves the content (a label, an image) within the button.
    void SetContentOffset(const zebcore::geom::PointT<float>& offset);
    const zebcore::geom::PointT<float>& GetContentOffset() const { return mContentOffset; }
    // Any number is kept; the drawing takes what fits the button (NaN as 0).
    void SetCornerRadius(float radius);
    float GetCornerRadius() const { return mCornerRadius; }
    // The border's width, then the inner bevel outline's; kept as given, drawn as they fit.
    void SetStrokeSizes(const std::pair<float, float>& sizes);
    const std::pair<float, float>& GetStrokeSizes() const { return mStrokeSizes; }

    // A press on the button is in progress with the pointer over it.
    bool IsPressed() const { return mPressed; }
    // Whether the present state draws the container and the border; never for a class
    // whose face has no chrome.
    virtual bool DrawsContainer() const;
    virtual bool DrawsBorder() const;

    // A cancelled change ends the press and leaves the value.
    void CancelInteractiveChange() override;
    bool UI_GainKeyboardFocus(ui::FocusChangeReason reason) override;
    // Space on the focused button presses it (PressOnSpace).
    bool UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) override;

protected:
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;

    // Where content goes, in the button's own coordinates: inside the border where one is
    // drawn (or the undrawn space is inset), moved by the content offset.
    zebcore::geom::RectT<float> GetContentRect() const;

private:
    enum Look : unsigned {
        kContainerNever = 1u << 0,
        kContainerAlways = 1u << 1,
        kBorderNever = 1u << 2,
        kBorderAlways = 1u << 3,
        kChromeless = 1u << 4,
        kInsetUndrawn = 1u << 5,
        kInnerBevel = 1u << 6,
    };

    void setLook(Look look, bool on);
    bool hasLook(Look look) const { return (mLook & look) != 0; }
    bool inNormalState() const;
    void setPressed(bool pressed);
    void toggle();

    ButtonValue mValue = kButtonValue_Off;
    unsigned mLook = 0;
    bool mChangeFocusOnClick = true;
    bool mNotificationOnMouseDown = false;
    bool mSpringLoaded = false;
    bool mPressed = false;
    zebcore::geom::PointT<float> mContentOffset;
    float mCornerRadius = 0;
    std::pair<float, float> mStrokeSizes{1.0f, 1.0f};
};

}  // namespace controls
}  // namespace zebui
