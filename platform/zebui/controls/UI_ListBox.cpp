// A list of items to pick from.
#include "zebui/controls/UI_ListBox.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_ListBox::UI_ListBox(bool /*first*/, bool /*second*/, bool /*third*/, bool /*fourth*/) {}

UI_ListBox::~UI_ListBox() = default;

void UI_ListBox::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    face::FrameRect(inkwell, face::Bounds(*this), face::kFieldFill, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui
