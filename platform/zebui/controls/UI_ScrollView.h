// A view that scrolls a content view.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/Flags.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_ScrollView : public UI_InteractiveControlView {
public:
    using ScrollFlags = zebcore::utility::Flags<unsigned int>;

    // flags are the toolkit's scroller options, kept as given. A content view becomes the
    // scroll view's first child (leaving any parent it had); null leaves it empty.
    UI_ScrollView(ScrollFlags flags, const boost::intrusive_ptr<ui::UI_SubView>& contentView);
    ~UI_ScrollView() override;

    ScrollFlags GetScrollFlags() const { return mFlags; }
    // The content view it was made with; held, so a script may take it out of the tree.
    ui::UI_SubView* GetContentView() const { return mContentView.get(); }

private:
    ScrollFlags mFlags;
    boost::intrusive_ptr<ui::UI_SubView> mContentView;
};

}  // namespace controls
}  // namespace zebui
