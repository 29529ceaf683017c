// A radio button.
#include "zebui/controls/UI_RadioButton.h"

namespace zebui {
namespace controls {

UI_RadioButton::UI_RadioButton() = default;

UI_RadioButton::~UI_RadioButton() = default;

}  // namespace controls
}  // namespace zebui
