// A view split in two panes by a movable bar.
#include "zebui/controls/UI_SplitterView.h"

namespace zebui {
namespace controls {

UI_SplitterView::UI_SplitterView(int /*direction*/, float /*splitPercentage*/, float /*third*/) {}

UI_SplitterView::~UI_SplitterView() = default;

}  // namespace controls
}  // namespace zebui
