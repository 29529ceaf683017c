// A check box.
#include "zebui/controls/UI_Checkbox.h"

namespace zebui {
namespace controls {

UI_Checkbox::UI_Checkbox() = default;

UI_Checkbox::~UI_Checkbox() = default;

}  // namespace controls
}  // namespace zebui
