// A mouse or gesture event as the toolkit delivers it to a node.
#pragma once

#include "zebcore/geom/PointT.h"
#include "zebui/ui/InputCodes.h"
#include "zebui/ui/OS_Event.h"

namespace zebui {
namespace ui {

// The position is in the local coordinates of the node the event is aimed at.
// Numbers as in InputCodes.h; the event copies everything it is given.
class MouseEvent {
public:
    using Action = MouseAction;

    MouseEvent(Action action, int button, int clickCount,
               const zebcore::geom::PointT<float>& position, ModifierFlags modKey,
               const OS_Event& osEvent, int mouseWheelDelta, int mouseWheelAxis,
               float magnification, float rotation, SwipeDirection swipeDirection,
               int gesturePhase);

    Action GetAction() const { return mAction; }
    int GetButton() const { return mButton; }
    int GetClickCount() const { return mClickCount; }
    const zebcore::geom::PointT<float>& GetPosition() const { return mPosition; }
    ModifierFlags GetModKey() const { return mModKey; }
    const OS_Event& GetOSEvent() const { return mOSEvent; }
    int GetMouseWheelDelta() const { return mMouseWheelDelta; }
    int GetMouseWheelAxis() const { return mMouseWheelAxis; }
    float GetMagnification() const { return mMagnification; }
    float GetRotation() const { return mRotation; }
    SwipeDirection GetSwipeDirection() const { return mSwipeDirection; }
    int GetGesturePhase() const { return mGesturePhase; }

private:
    Action mAction;
    int mButton;
    int mClickCount;
    zebcore::geom::PointT<float> mPosition;
    ModifierFlags mModKey;
    OS_Event mOSEvent;
    int mMouseWheelDelta;
    int mMouseWheelAxis;
    float mMagnification;
    float mRotation;
    SwipeDirection mSwipeDirection;
    int mGesturePhase;
};

}  // namespace ui
}  // namespace zebui
