// A button that opens a menu of choices and shows the chosen one.
#include "zebui/controls/UI_Popup.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_Popup::UI_Popup(int popupType, bool /*flag*/) : mPopupType(popupType) {}

UI_Popup::~UI_Popup() = default;

void UI_Popup::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    UI_Button::UI_DrawFace(inkwell);
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const float middle = bounds.height / 2;
    const float right = bounds.width - 6;
    const zebcore::geom::PointT<float> arrow[] = {
        {right - 8, middle - 2}, {right, middle - 2}, {right - 4, middle + 3}};
    face::FillPolygon(inkwell, arrow, 3, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui
