// A platform window that holds a view tree.
#include "zebui/ui/OS_ViewContainer.h"

namespace zebui {
namespace ui {

OS_ViewContainer::OS_ViewContainer(bool popsUp) : mPopsUp(popsUp) {}

OS_ViewContainer::~OS_ViewContainer() = default;

}  // namespace ui
}  // namespace zebui
