// A view that scrolls a content view.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/Flags.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_ScrollBar;

// Geometry, in the scroll view's own coordinates unless said otherwise:
// - the content rect is the content view's frame (without a content view, a rect of the
//   scroll view's own); its origin is minus the scroll offset;
// - the viewable rect is the view's bounds less the bars that the flags ask for, which
//   lie along the bottom (horizontal bar) and the right (vertical bar) edges;
// - the viewed content rect is the viewable rect in the content's coordinates: moved by
//   the offset and divided by the scale.
// The scroll offset is the control's value: each real change of it is reported as one.
class UI_ScrollView : public UI_InteractiveControlView {
public:
    using ScrollFlags = zebcore::utility::Flags<unsigned int>;
    static constexpr unsigned int kScrollFlag_HorizontalBar = 1;
    static constexpr unsigned int kScrollFlag_VerticalBar = 2;
    static constexpr float kDefaultScrollBarSize = 12.0f;

    // flags are the toolkit's scroller options, kept as given; their bars are made here.
    // A content view becomes the scroll view's first child (leaving any parent it had);
    // null leaves it empty.
    UI_ScrollView(ScrollFlags flags, const boost::intrusive_ptr<ui::UI_SubView>& contentView);
    ~UI_ScrollView() override;

    ScrollFlags GetScrollFlags() const { return mFlags; }
    // The content view it was made with; held, so a script may take it out of the tree.
    ui::UI_SubView* GetContentView() const { return mContentView.get(); }

    zebcore::geom::RectT<float> GetContentRectF() const;
    void SetContentRectF(const zebcore::geom::RectT<float>& rect);
    zebcore::geom::RectT<float> GetViewableRectF() const;
    zebcore::geom::RectT<float> GetViewedContentRectF() const;
    // Scrolls the least distance that brings rect (in the content's coordinates) into the
    // viewable rect, its top-left corner first when it is the larger. keepInContent also
    // stops the content short of leaving empty space inside the viewable rect.
    void ScrollIntoView(const zebcore::geom::RectT<float>& rect, bool keepInContent);
    zebcore::geom::PointT<float> GetScrollOffset() const { return mScrollOffset; }
    zebcore::geom::PointT<float> GetScale() const { return mScale; }
    void SetScale(const zebcore::geom::PointT<float>& scale);
    UI_ScrollBar* GetScrollBarX() const { return mBarX.get(); }
    UI_ScrollBar* GetScrollBarY() const { return mBarY.get(); }
    float GetScrollBarSize() const { return mBarSize; }
    void SetScrollBarSize(float size);
    // Places the content view and the bars again and asks for a redraw.
    void Update();

protected:
    void UI_LayoutChildrenForSize(const zebcore::geom::PointT<float>& before,
                                  const zebcore::geom::PointT<float>& after) override;

private:
    bool hasContentChild() const;

    ScrollFlags mFlags;
    boost::intrusive_ptr<ui::UI_SubView> mContentView;
    boost::intrusive_ptr<UI_ScrollBar> mBarX;
    boost::intrusive_ptr<UI_ScrollBar> mBarY;
    zebcore::geom::RectT<float> mContentRect;
    zebcore::geom::PointT<float> mScrollOffset;
    zebcore::geom::PointT<float> mScale = zebcore::geom::PointT<float>(1, 1);
    float mBarSize = kDefaultScrollBarSize;
};

}  // namespace controls
}  // namespace zebui
