// The delay of the redraw debug flash.
#include "zebui/inkwell/RedrawDebugFlash.h"

namespace zebui {
namespace inkwell {
namespace {

unsigned sFlashDelay = 0;

}  // namespace

void SetRedrawDebugFlashDelay(unsigned delay) {
    sFlashDelay = delay;
}

unsigned GetRedrawDebugFlashDelay() {
    return sFlashDelay;
}

}  // namespace inkwell
}  // namespace zebui
