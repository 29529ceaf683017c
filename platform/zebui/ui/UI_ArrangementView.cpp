// A view that lays out its children.
#include "zebui/ui/UI_ArrangementView.h"

namespace zebui {
namespace ui {

UI_ArrangementView::UI_ArrangementView() = default;

UI_ArrangementView::~UI_ArrangementView() = default;

}  // namespace ui
}  // namespace zebui
