// The toolkit's message box: the buttons a box can show, as flags.
#pragma once

namespace zebui {
namespace dialogs {

class UI_MessageBox {
public:
    // Flags of the buttons a box shows; a scripted user answers with one of them.
    enum Button {
        kButton_None = 0,
        kButton_OK = 0x1,
        kButton_Yes = 0x2,
        kButton_No = 0x4,
        kButton_Abort = 0x8,
        kButton_Retry = 0x10,
        kButton_Ignore = 0x20,
        kButton_Cancel = 0x800,
    };
};

}  // namespace dialogs
}  // namespace zebui
