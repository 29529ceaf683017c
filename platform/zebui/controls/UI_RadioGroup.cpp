// A group that keeps at most one of its radio buttons on.
#include "zebui/controls/UI_RadioGroup.h"

#include "zebui/controls/UI_RadioButton.h"

namespace zebui {
namespace controls {

UI_RadioGroup::UI_RadioGroup() = default;

UI_RadioGroup::~UI_RadioGroup() = default;

boost::intrusive_ptr<UI_RadioButton> UI_RadioGroup::GetSelectedRadioButton() const {
    for (const auto& button : buttons())
        if (button->GetValue() == kRadioValue_On) return button;
    return nullptr;
}

// The buttons are held first, since each change runs change functions, which may change
// the tree or drop the last other reference to a button.
void UI_RadioGroup::SwitchOffAllBut(const UI_RadioButton* chosen) {
    const auto keep = ui::KeepNodeAlive(this);
    for (const auto& button : buttons())
        if (button.get() != chosen && button->GetValue() == kRadioValue_On)
            button->changeValue(kRadioValue_Off);
}

// Depth first, in child order, with a stack of its own, so no tree is too deep; a nested
// group's subtree is that group's.
std::vector<boost::intrusive_ptr<UI_RadioButton>> UI_RadioGroup::buttons() const {
    std::vector<boost::intrusive_ptr<UI_RadioButton>> found;
    std::vector<ui::UI_Node*> pending;
    const auto pushChildren = [&pending](const ui::UI_Node& node) {
        for (auto child = node.ChildEnd(); child != node.ChildBegin();)
            pending.push_back((--child)->get());
    };
    pushChildren(*this);
    while (!pending.empty()) {
        ui::UI_Node* node = pending.back();
        pending.pop_back();
        if (dynamic_cast<UI_RadioGroup*>(node)) continue;
        if (auto* button = dynamic_cast<UI_RadioButton*>(node)) found.emplace_back(button);
        pushChildren(*node);
    }
    return found;
}

}  // namespace controls
}  // namespace zebui
