// A view with a titled section that opens and closes.
#include "zebui/controls/UI_SectionView.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_SectionView::UI_SectionView(const zebcore::UTF16String& title, bool opened)
    : mTitle(title), mOpened(opened) {}

UI_SectionView::~UI_SectionView() = default;

void UI_SectionView::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bar(0, 0, face::Bounds(*this).width, kTitleBarHeight);
    face::FrameRect(inkwell, bar, face::kFaceFill, face::kFaceEdge);
    face::DrawText(inkwell, mTitle, zebcore::geom::RectT<float>(6, 0, bar.width - 12, bar.height),
                   inkwell::kTextAlignment_Left);
}

}  // namespace controls
}  // namespace zebui
