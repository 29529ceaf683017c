// Dialogs.
#include "zebui/ui/UI_Dialog.h"

namespace zebui {
namespace ui {

UI_Dialog::UI_Dialog(const inkwell::SupplierInterface* /*supplier*/,
                     const zebcore::UTF16String& /*title*/,
                     zebcore::geom::PointT<float> /*position*/,
                     const zebcore::geom::PointT<float>& /*size*/, bool /*first*/,
                     UI_Node* /*owner*/, bool /*second*/, bool /*third*/, bool /*fourth*/,
                     bool /*fifth*/, int /*style*/,
                     zebcore::utility::Flags<unsigned int> /*flags*/) {}

UI_Dialog::~UI_Dialog() = default;

}  // namespace ui
}  // namespace zebui
