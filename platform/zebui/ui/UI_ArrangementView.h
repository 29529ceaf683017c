// A view that lays out its children.
#pragma once

#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace ui {

class UI_ArrangementView : public UI_SubView {
public:
    UI_ArrangementView();
    ~UI_ArrangementView() override;
};

}  // namespace ui
}  // namespace zebui
