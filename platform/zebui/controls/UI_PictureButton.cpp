// A button drawn from images.
#include "zebui/controls/UI_PictureButton.h"

namespace zebui {
namespace controls {

UI_PictureButton::UI_PictureButton() = default;

UI_PictureButton::~UI_PictureButton() = default;

}  // namespace controls
}  // namespace zebui
