// An item of a list box.
#include "zebui/controls/UI_ListBoxItem.h"

namespace zebui {
namespace controls {

UI_ListBoxItem::UI_ListBoxItem() = default;

UI_ListBoxItem::~UI_ListBoxItem() = default;

}  // namespace controls
}  // namespace zebui
