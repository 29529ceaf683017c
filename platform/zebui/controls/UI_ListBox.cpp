// A list of items to pick from.
#include "zebui/controls/UI_ListBox.h"

namespace zebui {
namespace controls {

UI_ListBox::UI_ListBox(bool /*first*/, bool /*second*/, bool /*third*/, bool /*fourth*/) {}

UI_ListBox::~UI_ListBox() = default;

}  // namespace controls
}  // namespace zebui
