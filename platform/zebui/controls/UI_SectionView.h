// A view with a titled section that opens and closes.
#pragma once

#include <vector>

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "zebcore/utility/Strings.h"
#include "zebui/ui/UI_SubView.h"

namespace boost {
template <class Signature> class function;
}  // namespace boost

namespace zebui {
namespace controls {

// A header of its own height across the top; below it the section's content, its other
// children, shown while the section is opened and hidden while it is closed. A left click
// in the header opens or closes it. Each real change of the opened state calls the
// opened state callbacks, in the order they were added; they are kept until the view
// dies. The custom label view, made the first time it is shown, lies in the header over
// the title.
class UI_SectionView : public ui::UI_SubView {
public:
    using OpenedStateChangedFunctionP = boost::shared_ptr<boost::function<void(UI_SectionView*)>>;

    UI_SectionView(const zebcore::UTF16String& title, bool opened);
    ~UI_SectionView() override;

    const zebcore::UTF16String& GetTitle() const { return mTitle; }
    bool IsOpened() const { return mOpened; }
    bool GetOpened() const { return mOpened; }
    void SetOpened(bool opened);
    bool GetDrawGradientHeader() const { return mDrawGradientHeader; }
    void SetDrawGradientHeader(bool draw);
    float GetHeaderHeight() const { return mHeaderHeight; }
    void SetHeaderHeight(float height);
    bool IsCustomLabelViewShown() const { return mShowCustomLabelView; }
    void SetShowCustomLabelView(bool show);
    // Null until it was first shown.
    ui::UI_SubView* GetCustomLabelView() const { return mCustomLabelView.get(); }
    void AddOpenedStateChangedCallback(const OpenedStateChangedFunctionP& callback);

    bool UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) override;

    // The header's height until one is set.
    static constexpr float kTitleBarHeight = 18.0f;

protected:
    // The header with its title, unless the custom label view is shown.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_LayoutChildrenForSize(const zebcore::geom::PointT<float>& before,
                                  const zebcore::geom::PointT<float>& after) override;

private:
    void showContent();
    void placeLabelView();

    zebcore::UTF16String mTitle;
    bool mOpened;
    bool mDrawGradientHeader = false;
    float mHeaderHeight = kTitleBarHeight;
    bool mShowCustomLabelView = false;
    boost::intrusive_ptr<ui::UI_SubView> mCustomLabelView;
    std::vector<OpenedStateChangedFunctionP> mOpenedCallbacks;
};

}  // namespace controls
}  // namespace zebui
