// A text field for search terms.
#include "zebui/controls/UI_SearchBox.h"

namespace zebui {
namespace controls {

UI_SearchBox::UI_SearchBox(bool /*first*/, bool /*second*/) {}

UI_SearchBox::~UI_SearchBox() = default;

}  // namespace controls
}  // namespace zebui
