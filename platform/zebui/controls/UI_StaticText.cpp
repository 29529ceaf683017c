// A control that shows a text the user can't edit.
#include "zebui/controls/UI_StaticText.h"

namespace zebui {
namespace controls {

UI_StaticText::UI_StaticText() = default;

UI_StaticText::~UI_StaticText() = default;

}  // namespace controls
}  // namespace zebui
