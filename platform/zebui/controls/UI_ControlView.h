// A node with a value that tells its listeners when the value changes.
#pragma once

#include <vector>

#include "zebui/ui/NodeFunctions.h"
#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace controls {

// The value itself belongs to each control class; this base keeps the listeners and
// the state every control shares. Listeners are kept until the node dies and are
// called in the order they were added. Each gets a pointer to a message that lives
// only for the call: a UI_ControlChangedMessage here. A listener emptied by its owner
// (MessageFunction::clear) is skipped: that is how an owner that dies before the node
// stops being called.
//
// Value setters tell the listeners only about a real change, so a listener that sets
// the value it has just read back ends the exchange instead of looping.
class UI_ControlView : public ui::UI_SubView {
public:
    UI_ControlView();
    ~UI_ControlView() override;

    // The size of the toolkit's default text, in surface units (pixels at an identity
    // transform), for drawing and measuring without a chosen size.
    static float DefaultTextSize();

    void NotifyWhenChanged(const ui::MessageFunctionP& listener);
    virtual void SendValueChangedMessage();

    // The node's disabled state, under the controls' names.
    virtual void SetDisabled(bool disabled);
    bool IsDisabled() const { return UI_IsDisabled(); }
    // The value is unknown (a mixed state) until a control class sets a value again.
    // Becoming unknown is a change of value, reported as one.
    virtual void SetValueUnknown();
    bool IsValueUnknown() const { return mValueUnknown; }
    virtual void SetSuppressFocusDrawing(bool suppress);
    bool GetSuppressFocusDrawing() const { return mSuppressFocusDrawing; }

protected:
    // The one way a control class sets its value: stores value and reports the change,
    // unless stored already holds it and the value was known.
    template <class Value> void ChangeValue(Value& stored, const Value& value) {
        if (stored == value && !mValueUnknown) return;
        stored = value;
        mValueUnknown = false;
        SendValueChangedMessage();
    }
    // Calls each listener with the message, through copies, so that a listener may add
    // listeners or drop the last reference to the control.
    void SendToListeners(const std::vector<ui::MessageFunctionP>& listeners,
                         ui::MessageT<ui::UI_Node>& message);

private:
    std::vector<ui::MessageFunctionP> mChangedListeners;
    bool mValueUnknown = false;
    bool mSuppressFocusDrawing = false;
};

}  // namespace controls
}  // namespace zebui
