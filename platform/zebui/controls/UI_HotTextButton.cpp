// A text that acts as a button.
#include "zebui/controls/UI_HotTextButton.h"

namespace zebui {
namespace controls {

UI_HotTextButton::UI_HotTextButton() = default;

UI_HotTextButton::~UI_HotTextButton() = default;

}  // namespace controls
}  // namespace zebui
