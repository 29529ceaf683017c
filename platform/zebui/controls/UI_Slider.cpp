// A linear slider.
#include "zebui/controls/UI_Slider.h"

namespace zebui {
namespace controls {

UI_Slider::UI_Slider() = default;

UI_Slider::~UI_Slider() = default;

}  // namespace controls
}  // namespace zebui
