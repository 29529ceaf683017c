// Which icon set the toolkit's images are drawn from.
#pragma once

namespace zebui {
namespace ui {

// 1 is the dark set; the other values are the light sets. 0 until the host (or a test)
// chooses.
int GetIconType();
void SetIconType(int iconType);

}  // namespace ui
}  // namespace zebui
