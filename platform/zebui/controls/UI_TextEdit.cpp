// An editable text field.
#include "zebui/controls/UI_TextEdit.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_TextEdit::UI_TextEdit(EditFlags flags, int alignment) : mFlags(flags), mAlignment(alignment) {}

UI_TextEdit::~UI_TextEdit() = default;

void UI_TextEdit::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    face::FrameRect(inkwell, face::Bounds(*this), face::kFieldFill, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui
