// A row of tabs.
#pragma once

#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace controls {

class UI_TabWell : public ui::UI_SubView {
public:
    UI_TabWell();
    ~UI_TabWell() override;
};

}  // namespace controls
}  // namespace zebui
