// Mouse and gesture events.
#include "zebui/ui/MouseEvent.h"

namespace zebui {
namespace ui {

MouseEvent::MouseEvent(Action action, int button, int clickCount,
                       const zebcore::geom::PointT<float>& position, ModifierFlags modKey,
                       const OS_Event& osEvent, int mouseWheelDelta, int mouseWheelAxis,
                       float magnification, float rotation, SwipeDirection swipeDirection,
                       int gesturePhase)
    : mAction(action), mButton(button), mClickCount(clickCount), mPosition(position),
      mModKey(modKey), mOSEvent(osEvent), mMouseWheelDelta(mouseWheelDelta),
      mMouseWheelAxis(mouseWheelAxis), mMagnification(magnification), mRotation(rotation),
      mSwipeDirection(swipeDirection), mGesturePhase(gesturePhase) {}

}  // namespace ui
}  // namespace zebui
