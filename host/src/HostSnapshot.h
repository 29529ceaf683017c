// zebhost.snapshot: a node tree as plain Lua tables, for tests to read.
#pragma once

struct lua_State;

namespace zebhost {

// Adds to the global table zebhost:
//   t = zebhost.snapshot(node [, depth])
// One plain table per node: class (the toolkit class, "UI_Slider"), id, index (from 1,
// nil without a parent), shown, enabled, rect (local: left, top, width, height),
// globalRect, focus (the node itself has the keyboard focus), toolTip, toolTipWidth,
// toolTipAvoidsBounds, themeName, drawCachePolicy (the toolkit's number: 0 default,
// 1 never, 2 always, 3 always as bitmap), clipToSelf, mouseOver (the last mouse event went
// to the node itself), redraw (what UI_Invalidate and UI_UpdateNow were asked: invalidations,
// wholeNode, rects, invalidateFlags, updates, updateFlags), childCount, children (an
// array of the same, down to depth levels below node; all of them without depth), and
// state: what the node's control classes hold, filled by one function per class (see
// kStateFillers), so a class that gains state adds its fields there. No script runs
// while a snapshot is made.
void OpenHostSnapshot(lua_State* L);

}  // namespace zebhost
