// A text button with a triangle that shows whether something is open.
#include "zebui/controls/UI_DisclosureTriangleButton.h"

namespace zebui {
namespace controls {

UI_DisclosureTriangleButton::UI_DisclosureTriangleButton() = default;

UI_DisclosureTriangleButton::~UI_DisclosureTriangleButton() = default;

}  // namespace controls
}  // namespace zebui
