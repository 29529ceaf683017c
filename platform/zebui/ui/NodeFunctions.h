// The function types through which code takes part in a node's behaviour without a
// subclass: hooks, timer notifications and message listeners.
#pragma once

#include <boost/function/function_fwd.hpp>
#include <boost/shared_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebui/ui/InputCodes.h"

namespace zebui {
namespace inkwell {
class Inkwell;
}  // namespace inkwell

namespace ui {

class UI_Node;
class MouseEvent;
class KeyboardEvent;
template <class Sender> class MessageT;

// Every function is held by a boost::shared_ptr, so that its setter and the node can
// share it. Event hooks answer whether they took the event, through both the result
// and the bool&; the node counts either as a yes.

// Answers whether it did the drawing; if not, the node draws itself.
using CustomDrawFunction = boost::function<bool(const UI_Node*, inkwell::Inkwell*)>;
using CustomMouseEventFunction = boost::function<bool(UI_Node*, const MouseEvent&, bool&)>;
using CustomKeyboardEventFunction = boost::function<bool(UI_Node*, const KeyboardEvent&, bool&)>;
using CustomDoCursorFunction =
    boost::function<bool(UI_Node*, const zebcore::geom::PointT<float>&, ModifierFlags, bool&)>;
using SizeChangedNotifyFunction = boost::function<void()>;
using FocusChangedFunction = boost::function<void(UI_Node*, FocusChangeReason)>;
// Gets a timer id; answers whether the tick was its own.
using TimerNotifyFunction = boost::function<bool(int)>;
using MessageFunction = boost::function<void(MessageT<UI_Node>*)>;
using ConstMessageFunction = boost::function<void(MessageT<const UI_Node>*)>;

using CustomDrawFunctionP = boost::shared_ptr<CustomDrawFunction>;
using CustomMouseEventFunctionP = boost::shared_ptr<CustomMouseEventFunction>;
using CustomKeyboardEventFunctionP = boost::shared_ptr<CustomKeyboardEventFunction>;
using CustomDoCursorFunctionP = boost::shared_ptr<CustomDoCursorFunction>;
using SizeChangedNotifyFunctionP = boost::shared_ptr<SizeChangedNotifyFunction>;
using FocusChangedFunctionP = boost::shared_ptr<FocusChangedFunction>;
using TimerNotifyFunctionP = boost::shared_ptr<TimerNotifyFunction>;
using MessageFunctionP = boost::shared_ptr<MessageFunction>;
using ConstMessageFunctionP = boost::shared_ptr<ConstMessageFunction>;

}  // namespace ui
}  // namespace zebui
