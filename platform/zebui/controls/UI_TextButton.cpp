// A button with a text label.
#include "zebui/controls/UI_TextButton.h"

namespace zebui {
namespace controls {

UI_TextButton::UI_TextButton() = default;

UI_TextButton::~UI_TextButton() = default;

}  // namespace controls
}  // namespace zebui
