// A sub view laid over others that draws its children on demand.
#include "zeblua/ui/src/LuaOverlaySubView.h"

namespace zeblua {
namespace ui {

LuaOverlaySubView::LuaOverlaySubView() = default;

LuaOverlaySubView::~LuaOverlaySubView() = default;

}  // namespace ui
}  // namespace zeblua
