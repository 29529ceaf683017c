// A push button.
#include "zebui/controls/UI_Button.h"

namespace zebui {
namespace controls {

UI_Button::UI_Button() = default;

UI_Button::~UI_Button() = default;

}  // namespace controls
}  // namespace zebui
