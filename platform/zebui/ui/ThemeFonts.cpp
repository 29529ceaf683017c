// The font families of the theme.
#include "zebui/ui/ThemeFonts.h"

namespace zebui {
namespace ui {

zebcore::UTF16String GetFontName(unsigned long /*fontIndex*/) {
    return u"DejaVu Sans";
}

float GetFontSize(unsigned long fontIndex) {
    static const float kSizes[] = {13.0f, 11.0f, 15.0f};
    return fontIndex < sizeof kSizes / sizeof kSizes[0] ? kSizes[fontIndex] : 11.0f;
}

}  // namespace ui
}  // namespace zebui
