// A view that scrolls a content view.
#include "zebui/controls/UI_ScrollView.h"

namespace zebui {
namespace controls {

UI_ScrollView::UI_ScrollView(ScrollFlags flags,
                             const boost::intrusive_ptr<ui::UI_SubView>& contentView)
    : mFlags(flags), mContentView(contentView) {
    if (contentView) ChildPushBack(contentView);
}

UI_ScrollView::~UI_ScrollView() = default;

}  // namespace controls
}  // namespace zebui
