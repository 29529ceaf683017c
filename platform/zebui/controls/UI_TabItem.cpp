// One tab of a tab well.
#include "zebui/controls/UI_TabItem.h"

#include "zebui/controls/ControlFace.h"
#include "zebui/inkwell/InkwellTypes.h"

namespace zebui {
namespace controls {

using zebcore::geom::RectT;

UI_TabItem::UI_TabItem(const zebcore::UTF16String& text, bool closable)
    : mText(text), mClosable(closable) {}

UI_TabItem::~UI_TabItem() = default;

void UI_TabItem::SetFrontmost(bool frontmost) {
    if (frontmost == mFrontmost) return;
    mFrontmost = frontmost;
    UI_Invalidate(nullptr, 0);
}

RectT<float> UI_TabItem::GetCloseBoxRect() const {
    if (!mClosable) return RectT<float>();
    const RectT<float> bounds = face::Bounds(*this);
    return RectT<float>(bounds.width - kCloseBoxSize - 4, (bounds.height - kCloseBoxSize) / 2,
                        kCloseBoxSize, kCloseBoxSize);
}

void UI_TabItem::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const RectT<float> bounds = face::Bounds(*this);
    face::FrameRect(inkwell, bounds, mFrontmost ? face::kFieldFill : face::kFaceFill,
                    face::kFaceEdge);
    if (mClosable) face::FrameRect(inkwell, GetCloseBoxRect(), face::kFaceEdge, face::kFaceEdge);
    const float textWidth = bounds.width - 12 - (mClosable ? kCloseBoxSize + 4 : 0);
    face::DrawText(inkwell, mText, RectT<float>(6, 0, textWidth, bounds.height),
                   inkwell::kTextAlignment_Left);
}

}  // namespace controls
}  // namespace zebui
