// A hot text number that shows and takes a timecode.
#pragma once

#include "zebui/controls/UI_HotTextNumber.h"

namespace zeblua {
namespace controls {

class UI_HotTextTimecode : public zebui::controls::UI_HotTextNumber {
public:
    UI_HotTextTimecode();
    ~UI_HotTextTimecode() override;
};

}  // namespace controls
}  // namespace zeblua
