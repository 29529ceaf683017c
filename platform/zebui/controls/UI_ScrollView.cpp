// A view that scrolls a content view.
#include "zebui/controls/UI_ScrollView.h"

namespace zebui {
namespace controls {

UI_ScrollView::UI_ScrollView(zebcore::utility::Flags<unsigned int> /*flags*/,
                             const boost::intrusive_ptr<ui::UI_SubView>& /*contentView*/) {}

UI_ScrollView::~UI_ScrollView() = default;

}  // namespace controls
}  // namespace zebui
