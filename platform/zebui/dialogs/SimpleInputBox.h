// A modal box with one line of text to enter.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/dialogs/UI_MessageBox.h"

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell
namespace ui {
class UI_Node;
}  // namespace ui

namespace dialogs {

// A modal run of the event loop. An answer whose code is the confirming button confirms
// with the answer's text as what was entered, and the call is true; any other answer, or a
// run that ends without one, cancels and leaves text as it came in. The flags, the sizes
// and the supplier only shape the box on screen, which a headless run has not.
bool SimpleInputBox(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
                    const zebcore::UTF16String& prompt, zebcore::UTF16String& text, bool selectText,
                    ui::UI_Node* parent, bool centered, float width, float height,
                    UI_MessageBox::Button confirmButton, UI_MessageBox::Button cancelButton);

}  // namespace dialogs
}  // namespace zebui
