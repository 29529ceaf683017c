// A node with its own coordinate space and layout: the base of most controls.
#pragma once

#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace ui {

class UI_SubView : public UI_Node {
public:
    UI_SubView();
    ~UI_SubView() override;
};

}  // namespace ui
}  // namespace zebui
