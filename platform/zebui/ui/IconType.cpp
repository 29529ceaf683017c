// Which icon set the toolkit's images are drawn from.
#include "zebui/ui/IconType.h"

namespace zebui {
namespace ui {

namespace {
int sIconType = 0;
}  // namespace

int GetIconType() {
    return sIconType;
}

void SetIconType(int iconType) {
    sIconType = iconType;
}

}  // namespace ui
}  // namespace zebui
