// A button that opens a menu of choices and shows the chosen one.
#include "zebui/controls/UI_Popup.h"

namespace zebui {
namespace controls {

UI_Popup::UI_Popup(int /*popupType*/, bool /*flag*/) {}

UI_Popup::~UI_Popup() = default;

}  // namespace controls
}  // namespace zebui
