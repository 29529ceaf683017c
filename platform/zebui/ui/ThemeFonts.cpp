// The font families of the theme.
#include "zebui/ui/ThemeFonts.h"

namespace zebui {
namespace ui {

zebcore::UTF16String GetFontName(unsigned long /*fontIndex*/) {
    return u"DejaVu Sans";
}

}  // namespace ui
}  // namespace zebui
