// A number shown as text that the user changes by dragging or typing.
#include "zebui/controls/UI_HotTextNumber.h"

namespace zebui {
namespace controls {

UI_HotTextNumber::UI_HotTextNumber() = default;

UI_HotTextNumber::~UI_HotTextNumber() = default;

}  // namespace controls
}  // namespace zebui
