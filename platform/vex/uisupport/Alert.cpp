// Message boxes as modal runs of the event loop.
#include "vex/uisupport/Alert.h"

#include <boost/intrusive_ptr.hpp>

#include "zebui/ui/EventLoop.h"
#include "zebui/ui/UI_Node.h"

namespace vex {
namespace uisupport {

namespace {

std::vector<ShownAlert>& shownAlerts() {
    static std::vector<ShownAlert> alerts;
    return alerts;
}

// Runs the box and records it; a closed box (no answer) counts as its cancel button.
int runBox(Alert::Type type, Alert::Icon icon, const zebcore::UTF16String& first,
           const zebcore::UTF16String& second, zebui::ui::UI_Node* parent) {
    ShownAlert shown;
    shown.type = type;
    shown.icon = icon;
    shown.first = zebcore::utility::UTF16to8(first);
    shown.second = zebcore::utility::UTF16to8(second);
    if (parent) shown.parentId = parent->UI_GetNodeID();
    // The run may call scripts that drop the parent's last other holder.
    const boost::intrusive_ptr<zebui::ui::UI_Node> keep(parent);
    const zebui::ui::ModalResult answer = zebui::ui::EventLoop::Get()->RunModal();
    shown.response = answer.cancelled ? Alert::ResponseCancel : answer.code;
    shownAlerts().push_back(shown);
    return shown.response;
}

}  // namespace

void Alert::ShowNote(const zebcore::UTF16String& first, const zebcore::UTF16String& second,
                     zebui::ui::UI_Node* parent) {
    runBox(TypeOk, IconNote, first, second, parent);
}

void Alert::ShowStop(const zebcore::UTF16String& first, const zebcore::UTF16String& second,
                     zebui::ui::UI_Node* parent) {
    runBox(TypeOk, IconStop, first, second, parent);
}

void Alert::ShowCaution(const zebcore::UTF16String& first, const zebcore::UTF16String& second,
                        zebui::ui::UI_Node* parent) {
    runBox(TypeOk, IconCaution, first, second, parent);
}

int Alert::Show(Type type, Icon icon, const zebcore::UTF16String& first,
                const zebcore::UTF16String& second, zebui::ui::UI_Node* parent) {
    return runBox(type, icon, first, second, parent);
}

const std::vector<ShownAlert>& ShownAlerts() {
    return shownAlerts();
}

void ClearShownAlerts() {
    shownAlerts().clear();
}

}  // namespace uisupport
}  // namespace vex
