// zebhost.draw: pictures of node trees through the real draw pass, and golden images.
#pragma once

struct lua_State;

namespace zebhost {

// Adds to the global table zebhost:
//   picture = zebhost.draw(root [, pngPath])
//       Draws the tree through the toolkit's draw pass (each shown node clipped to its
//       frame, draw hooks and bound "uiDraw" functions included) onto a transparent
//       surface of the root's size; pixel (0, 0) is the root's top-left corner. Writes
//       the PNG (making folders) when a path is given.
//   picture:pixel(x, y) -> red, green, blue, alpha: 0 to 255, not premultiplied;
//       0, 0, 0, 0 outside the picture
//   picture:size()      -> width, height
//   picture:write(path) -> true, or an error when the file cannot be written
//   ok, message = zebhost.compareImage(picture, goldenPath [, tolerance])
//       true when the golden PNG has the picture's size and no channel of any pixel
//       differs by more than tolerance (0 to 255, default 0). Otherwise false and what
//       differs; the picture and a diff (red where it differs, the picture faded
//       elsewhere) are written as <name>.actual.png and <name>.diff.png into the folder
//       of ZEBHOST_GOLDEN_OUT, or "golden-out" in the working folder. With
//       ZEBHOST_UPDATE_GOLDEN=1 in the environment the picture is written as the golden
//       image instead and the answer is true.
void OpenHostPicture(lua_State* L);

}  // namespace zebhost
