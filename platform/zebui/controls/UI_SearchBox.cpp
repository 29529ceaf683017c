// A text field for search terms.
#include "zebui/controls/UI_SearchBox.h"

#include <algorithm>

#include "zebui/controls/ControlFace.h"
#include "zebui/ui/InputCodes.h"
#include "zebui/ui/KeyboardEvent.h"

namespace zebui {
namespace controls {

UI_SearchBox::UI_SearchBox(bool first, bool second)
    : UI_TextEdit(EditFlags(0), 0), mFirst(first), mSecond(second) {}

UI_SearchBox::~UI_SearchBox() = default;

void UI_SearchBox::SetSearchToolTip() {
    if (!mSearchHistory) return;
    zebcore::UTF16String text;
    for (const zebcore::UTF16String& search : *mSearchHistory)
        text += (text.empty() ? u"" : u"\n") + search;
    UI_SetToolTip(text, 0);
}

zebcore::geom::RectT<float> UI_SearchBox::GetLabelTextRect() const {
    const zebcore::geom::RectT<float> field = UI_TextEdit::GetLabelTextRect();
    const float lens = face::Bounds(*this).height / 5 * 2 + 8;  // the lens and its margins
    return {lens, field.top, std::max(field.width + field.left - lens, 0.0f), field.height};
}

bool UI_SearchBox::HandleOtherKey(const ui::KeyboardEvent& event) {
    const unsigned int code = event.GetCode().GetValue(true);
    if (code != ui::kKeyCode_Return && code != ui::kKeyCode_KeypadEnter) return false;
    recordSearch();
    return true;
}

void UI_SearchBox::recordSearch() {
    if (!mSearchHistory || GetValue().empty()) return;
    const zebcore::UTF16String search = GetValue();
    mSearchHistory->remove(search);
    mSearchHistory->push_front(search);
    const auto largest = static_cast<std::size_t>(std::max(mSearchHistoryMaxSize, 0));
    if (mSearchHistory->size() > largest) mSearchHistory->resize(largest);
    SetSearchToolTip();
}

void UI_SearchBox::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    UI_TextEdit::UI_DrawFace(inkwell);
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const float radius = bounds.height / 5;
    face::FrameCircle(inkwell, zebcore::geom::PointT<float>(4 + radius, bounds.height / 2), radius,
                      face::kFieldFill, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui
