// A push button.
#include "zebui/controls/UI_Button.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_Button::UI_Button() = default;

UI_Button::~UI_Button() = default;

void UI_Button::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    face::FrameRect(inkwell, face::Bounds(*this), face::kFaceFill, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui
