// A row of tabs.
#include "zebui/controls/UI_TabWell.h"

namespace zebui {
namespace controls {

UI_TabWell::UI_TabWell() = default;

UI_TabWell::~UI_TabWell() = default;

}  // namespace controls
}  // namespace zebui
