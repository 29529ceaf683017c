// An editable text field.
#pragma once

#include "zebcore/utility/Flags.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_TextEdit : public UI_InteractiveControlView {
public:
    UI_TextEdit(zebcore::utility::Flags<unsigned int> flags, int alignment);
    ~UI_TextEdit() override;
};

}  // namespace controls
}  // namespace zebui
