// The font families and sizes of the theme, by the theme's font index.
#pragma once

#include "zebcore/utility/Strings.h"

namespace zebui {
namespace ui {

// Text_Main_Large 0, Text_Main_Small 1 and Text_Title 2 are all "DejaVu Sans"; so is any
// other index, so that a caller always gets a family that exists.
zebcore::UTF16String GetFontName(unsigned long fontIndex);
// In points: Text_Main_Large 13, Text_Main_Small 11, Text_Title 15; any other index the
// small size.
float GetFontSize(unsigned long fontIndex);

}  // namespace ui
}  // namespace zebui
