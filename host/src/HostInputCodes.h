// The toolkit's input numbering as a Lua table, for the script layer to publish.
#pragma once

struct lua_State;

namespace zebhost {

// codes = zebhost.inputCodes()
// A new table of groups, each mapping a constant's name to the toolkit's value as
// InputCodes.h defines it, so scripts never copy numbers by hand:
//   mouse (actions), buttons, wheelAxis, swipe, modifiers (bits of modKey),
//   keyboard (actions), keys (virtual key codes, the ranges k0..k9, kA..kZ, kF1..kF12
//   spelled out), focus (reasons of a focus change).
// The script layer publishes each group as zebhost.<group>.
int PushInputCodes(lua_State* L);

}  // namespace zebhost
