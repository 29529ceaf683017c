// The delay of the redraw debug flash, a developer aid that shows which areas redraw.
#pragma once

namespace zebui {
namespace inkwell {

// Recorded only: a headless surface has no screen to flash.
void SetRedrawDebugFlashDelay(unsigned delay);
unsigned GetRedrawDebugFlashDelay();

}  // namespace inkwell
}  // namespace zebui
