// Interactive change notifications: the binder and its registration.
#include "zeblua/ui/src/InteractiveControlChangedBinder.h"

#include <boost/intrusive_ptr.hpp>

#include "zeblua/ui/src/LuaBindingTable.h"
#include "zeblua/ui/src/ZebOperationCalls.h"
#include "zebui/controls/UI_InteractiveControlChangedMessage.h"
#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/ui/MessageFunctionAdapter.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {

template <class T> InteractiveControlChangedBinder<T>::InteractiveControlChangedBinder(T* control) {
    control->NotifyWhenChangedInteractively(Listen(zebui::ui::BindMessageFunction(
        this, &InteractiveControlChangedBinder::OnInteractiveChange)));
}

// The sender is held here, outside the protected frame that pushes its wrapper.
template <class T>
void InteractiveControlChangedBinder<T>::OnInteractiveChange(
    zebui::controls::UI_InteractiveControlChangedMessage* message) {
    CallFirstFunction([&](const LuaFunctionEntry& entry) {
        const boost::intrusive_ptr<zebui::ui::UI_Node> control =
            zebui::ui::KeepNodeAlive(message->GetControl());
        CallBoundInteractiveChange(entry, message, control);
    });
}

template <class T> bool LuaNotifyWhenInteractivelyChanged(lua_State* L, T* control, int reference) {
    return AddChangeFunction<InteractiveControlChangedBinder<T>>(
        L, control, LuaBindingTable::kInteractiveControlChangedSlot, reference);
}

template class InteractiveControlChangedBinder<zebui::controls::UI_InteractiveControlView>;
template bool LuaNotifyWhenInteractivelyChanged(lua_State* L,
                                                zebui::controls::UI_InteractiveControlView* control,
                                                int reference);

}  // namespace ui
}  // namespace zeblua
