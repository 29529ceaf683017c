// Value change notifications: the binder and its registration.
#include "zeblua/ui/src/ControlChangedBinder.h"

#include "zeblua/ui/src/LuaBindingTable.h"
#include "zeblua/ui/src/ZebOperationCalls.h"
#include "zebui/controls/UI_ControlChangedMessage.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/ui/MessageFunctionAdapter.h"

namespace zeblua {
namespace ui {

template <class T> ControlChangedBinder<T>::ControlChangedBinder(T* control) {
    control->NotifyWhenChanged(
        Listen(zebui::ui::BindMessageFunction(this, &ControlChangedBinder::OnChanged)));
}

template <class T>
void ControlChangedBinder<T>::OnChanged(zebui::controls::UI_ControlChangedMessage* message) {
    CallFirstFunction(
        [&](const LuaFunctionEntry& entry) { CallBoundControlChanged(entry, message); });
}

template <class T> bool LuaNotifyWhenChanged(lua_State* L, T* control, int reference) {
    return AddChangeFunction<ControlChangedBinder<T>>(
        L, control, LuaBindingTable::kControlChangedSlot, reference);
}

template class ControlChangedBinder<zebui::controls::UI_ControlView>;
template bool LuaNotifyWhenChanged(lua_State* L, zebui::controls::UI_ControlView* control,
                                   int reference);

}  // namespace ui
}  // namespace zeblua
