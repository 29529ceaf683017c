// The binder base.
#include "zeblua/ui/src/LuaBinder.h"

namespace zeblua {
namespace ui {

LuaBinder::~LuaBinder() = default;

}  // namespace ui
}  // namespace zeblua
