// A group that keeps at most one of its radio buttons on.
#pragma once

#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zebui/controls/UI_ControlView.h"

namespace zebui {
namespace controls {

class UI_RadioButton;

// Its buttons are the radio buttons below it in its tree that have no nearer group, at any
// depth. Its value is the selection: it reports a change of value whenever a button of it
// is switched on (or the selected one off), after that button's own change functions ran.
class UI_RadioGroup : public UI_ControlView {
public:
    UI_RadioGroup();
    ~UI_RadioGroup() override;

    // The first button of the group, depth first, that is on; null when none is.
    boost::intrusive_ptr<UI_RadioButton> GetSelectedRadioButton() const;

    // Switches every button of the group but chosen off, each a change of its value.
    void SwitchOffAllBut(const UI_RadioButton* chosen);

private:
    std::vector<boost::intrusive_ptr<UI_RadioButton>> buttons() const;
};

}  // namespace controls
}  // namespace zebui
