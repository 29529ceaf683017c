// A rotary control.
#include "zebui/controls/UI_Knob.h"

namespace zebui {
namespace controls {

UI_Knob::UI_Knob() = default;

UI_Knob::~UI_Knob() = default;

}  // namespace controls
}  // namespace zebui
