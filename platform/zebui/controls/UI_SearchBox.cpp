// A text field for search terms.
#include "zebui/controls/UI_SearchBox.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_SearchBox::UI_SearchBox(bool first, bool second) : mFirst(first), mSecond(second) {}

UI_SearchBox::~UI_SearchBox() = default;

void UI_SearchBox::SetSearchToolTip() {
    if (!mSearchHistory) return;
    zebcore::UTF16String text;
    for (const zebcore::UTF16String& search : *mSearchHistory)
        text += (text.empty() ? u"" : u"\n") + search;
    UI_SetToolTip(text, 0);
}

void UI_SearchBox::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    face::FrameRect(inkwell, bounds, face::kFieldFill, face::kFaceEdge);
    const float radius = bounds.height / 5;
    face::FrameCircle(inkwell, zebcore::geom::PointT<float>(4 + radius, bounds.height / 2), radius,
                      face::kFieldFill, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui
