// Modal message boxes of the application framework, answered headless by the event loop's
// scripted user.
#pragma once

#include <string>
#include <vector>

#include "zebcore/utility/Strings.h"

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui
}  // namespace zebui

namespace vex {
namespace uisupport {

// Each box is a modal run of the event loop: the answer's code is the button pressed
// (a Response), its text is ignored. A run that ends with no answer (nothing queued) is
// the user closing the box: Show answers ResponseCancel then.
class Alert {
public:
    enum Type {
        TypeOk = 0,
        TypeOkCancel = 1,
        TypeAbortRetryIgnore = 2,
        TypeYesNoCancel = 3,
        TypeYesNo = 4,
        TypeRetryCancel = 5,
        TypeRetryQuit = 6,
    };
    enum Icon {
        IconNone = 0,
        IconStop = 1,
        IconQuestion = 2,
        IconCaution = 3,
        IconNote = 4,
    };
    enum Response {
        ResponseOk = 0,
        ResponseCancel = 1,
        ResponseAbort = 2,
        ResponseIgnore = 3,
        ResponseYes = 4,
        ResponseNo = 5,
        ResponseRetry = 6,
    };

    // The first text is the box's title, the second its message. parent may be null.
    static void ShowNote(const zebcore::UTF16String& first, const zebcore::UTF16String& second,
                         zebui::ui::UI_Node* parent);
    static void ShowStop(const zebcore::UTF16String& first, const zebcore::UTF16String& second,
                         zebui::ui::UI_Node* parent);
    static void ShowCaution(const zebcore::UTF16String& first, const zebcore::UTF16String& second,
                            zebui::ui::UI_Node* parent);
    static int Show(Type type, Icon icon, const zebcore::UTF16String& first,
                    const zebcore::UTF16String& second, zebui::ui::UI_Node* parent);
};

// What a person would have seen: every box shown, oldest first, so a test can tell that a
// box appeared and with what. The host clears it when its Lua state closes.
struct ShownAlert {
    int type = 0;
    int icon = 0;
    zebcore::UTF8String first;
    zebcore::UTF8String second;
    zebcore::UTF8String parentId;  // the parent's node id, "" without a parent
    int response = 0;
};
const std::vector<ShownAlert>& ShownAlerts();
void ClearShownAlerts();

}  // namespace uisupport
}  // namespace vex
