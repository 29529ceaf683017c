// A scroll bar.
#include "zebui/controls/UI_ScrollBar.h"

namespace zebui {
namespace controls {

UI_ScrollBar::UI_ScrollBar() = default;

UI_ScrollBar::~UI_ScrollBar() = default;

}  // namespace controls
}  // namespace zebui
