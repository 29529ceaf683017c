// Sub views.
#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace ui {

UI_SubView::UI_SubView() = default;

UI_SubView::~UI_SubView() = default;

}  // namespace ui
}  // namespace zebui
