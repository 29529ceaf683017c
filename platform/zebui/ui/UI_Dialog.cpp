// Dialogs.
#include "zebui/ui/UI_Dialog.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace ui {

namespace face = controls::face;

UI_Dialog::UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
                     zebcore::geom::PointT<float> position,
                     const zebcore::geom::PointT<float>& size)
    : OS_Window(supplier), mTitle(title) {
    UI_SetLocalRectF(zebcore::geom::RectT<float>(position.x, position.y, size.x, size.y));
}

UI_Dialog::UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
                     zebcore::geom::PointT<float> position,
                     const zebcore::geom::PointT<float>& size, bool /*first*/, UI_Node* owner,
                     bool /*second*/, bool /*third*/, bool /*fourth*/, bool /*fifth*/,
                     int /*style*/, DialogFlags /*flags*/)
    : UI_Dialog(supplier, title, position, size) {
    mOwnerNode = owner;
}

UI_Dialog::UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
                     zebcore::geom::PointT<float> position,
                     const zebcore::geom::PointT<float>& size, bool /*first*/, NSWindow* owner,
                     bool /*second*/, bool /*third*/, bool /*fourth*/, bool /*fifth*/,
                     int /*style*/, DialogFlags /*flags*/)
    : UI_Dialog(supplier, title, position, size) {
    mOwnerWindow = owner;
}

UI_Dialog::~UI_Dialog() = default;

void UI_Dialog::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    face::FrameRect(inkwell, bounds, face::kFieldFill, face::kFaceEdge);
    const zebcore::geom::RectT<float> bar(0, 0, bounds.width, kTitleBarHeight);
    face::FrameRect(inkwell, bar, face::kFaceFill, face::kFaceEdge);
    face::DrawText(inkwell, mTitle, bar, inkwell::kTextAlignment_Center);
}

}  // namespace ui
}  // namespace zebui
