// The input box as a modal run.
#include "zebui/dialogs/SimpleInputBox.h"

#include <boost/intrusive_ptr.hpp>

#include "zebui/ui/EventLoop.h"
#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace dialogs {

bool SimpleInputBox(const inkwell::SupplierInterface* /*supplier*/,
                    const zebcore::UTF16String& /*title*/, const zebcore::UTF16String& /*prompt*/,
                    zebcore::UTF16String& text, bool /*selectText*/, ui::UI_Node* parent,
                    bool /*centered*/, float /*width*/, float /*height*/,
                    UI_MessageBox::Button confirmButton, UI_MessageBox::Button /*cancelButton*/) {
    const boost::intrusive_ptr<ui::UI_Node> keep(parent);  // the run may drop other holders
    const ui::ModalResult answer = ui::EventLoop::Get()->RunModal();
    if (answer.cancelled || answer.code != confirmButton) return false;
    text = zebcore::utility::UTF8to16(answer.text);
    return true;
}

}  // namespace dialogs
}  // namespace zebui
