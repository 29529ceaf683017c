// A group that keeps one of its radio buttons on.
#include "zebui/controls/UI_RadioGroup.h"

namespace zebui {
namespace controls {

UI_RadioGroup::UI_RadioGroup() = default;

UI_RadioGroup::~UI_RadioGroup() = default;

}  // namespace controls
}  // namespace zebui
