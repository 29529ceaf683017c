// Theme users.
#include "zebui/ui/ThemeClient.h"

namespace zebui {
namespace ui {

ThemeClient::~ThemeClient() = default;

}  // namespace ui
}  // namespace zebui
