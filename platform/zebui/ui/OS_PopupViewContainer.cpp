// A view container that pops up over other windows.
#include "zebui/ui/OS_PopupViewContainer.h"

namespace zebui {
namespace ui {

OS_PopupViewContainer::OS_PopupViewContainer() : OS_ViewContainer(true) {}

OS_PopupViewContainer::~OS_PopupViewContainer() = default;

}  // namespace ui
}  // namespace zebui
