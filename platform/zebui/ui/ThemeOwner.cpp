// Theme names of nodes.
#include "zebui/ui/ThemeOwner.h"

namespace zebui {
namespace ui {

ThemeOwner::~ThemeOwner() = default;

void ThemeOwner::SetThemeName(const zebcore::UTF16String& name, unsigned int) {
    mThemeName = name;
}

}  // namespace ui
}  // namespace zebui
