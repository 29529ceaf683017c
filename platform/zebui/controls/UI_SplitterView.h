// A view split in two panes by a movable bar.
#pragma once

#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace controls {

class UI_SplitterView : public ui::UI_SubView {
public:
    UI_SplitterView(int direction, float splitPercentage, float third);
    ~UI_SplitterView() override;
};

}  // namespace controls
}  // namespace zebui
