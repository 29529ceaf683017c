// A window with a container view, default buttons, a modal run and a response.
#pragma once

#include "zebcore/geom/PointT.h"
#include "zebcore/utility/Flags.h"
#include "zebcore/utility/Strings.h"
#include "zebui/ui/OS_Window.h"

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell

namespace ui {

// The arguments after the size are the toolkit's window options, in its order.
class UI_Dialog : public OS_Window {
public:
    UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
              zebcore::geom::PointT<float> position, const zebcore::geom::PointT<float>& size,
              bool first, UI_Node* owner, bool second, bool third, bool fourth, bool fifth,
              int style, zebcore::utility::Flags<unsigned int> flags);
    ~UI_Dialog() override;
};

}  // namespace ui
}  // namespace zebui
