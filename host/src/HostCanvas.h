// zebhost.canvas: a script draws into pixels of its own and may write them as a PNG.
#pragma once

struct lua_State;

namespace zebui {
namespace inkwell {
class CairoSupplier;
class CairoSurface;
}  // namespace inkwell
}  // namespace zebui

namespace zebhost {

// The supplier of the host's offscreen pictures. Never destroyed: a script may keep a
// surface drawn over a picture (NewInkwell holds it) until its state closes.
zebui::inkwell::CairoSupplier& CanvasSupplier();

// Writes the pixels to path, making its missing folders; false when it cannot.
bool WritePNG(zebui::inkwell::CairoSurface& surface, const char* path);

// -- ok = zebhost.canvas(width, height, fn [, pngPath])
// Makes a transparent offscreen surface of the headless back end and an Inkwell over it,
// and calls fn(ink) inside a draw scope exactly as a node's draw hook does: the surface's
// state pushed, anti-aliasing at medium, the scope closed and the state popped when fn
// returns, so a proxy fn keeps is dead afterwards. Writes the pixels to pngPath, making
// its missing folders, when one is given (nil counts as none); returns true.
// Unlike a draw hook, an error in fn is not dropped: it is raised again, unchanged, once
// the scope is closed and the state popped, and no file is written. Every argument is
// read before anything is made.
int HostCanvas(lua_State* L);

}  // namespace zebhost
