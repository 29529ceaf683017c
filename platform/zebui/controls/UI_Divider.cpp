// A dividing line between groups of controls.
#include "zebui/controls/UI_Divider.h"

namespace zebui {
namespace controls {

UI_Divider::UI_Divider() = default;

UI_Divider::~UI_Divider() = default;

}  // namespace controls
}  // namespace zebui
