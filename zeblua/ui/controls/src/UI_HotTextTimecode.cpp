// A hot text number that shows and takes a timecode.
#include "zeblua/ui/controls/src/UI_HotTextTimecode.h"

namespace zeblua {
namespace controls {

UI_HotTextTimecode::UI_HotTextTimecode() = default;

UI_HotTextTimecode::~UI_HotTextTimecode() = default;

}  // namespace controls
}  // namespace zeblua
