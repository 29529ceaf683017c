// The remembered cursor of the headless toolkit.
#include "zebui/utility/Cursor.h"

namespace zebui {
namespace utility {

namespace {

DisplayedCursor& displayed() {
    static DisplayedCursor sCursor;
    return sCursor;
}

}  // namespace

void DisplayCursorFromImage(const boost::intrusive_ptr<inkwell::ImageInterface>& image,
                            int16_t hotX, int16_t hotY) {
    DisplayedCursor cursor;
    cursor.source = DisplayedCursor::kImageCursor;
    cursor.image = image;
    cursor.hotX = hotX;
    cursor.hotY = hotY;
    displayed() = cursor;
}

void DisplayResourceCursor(const ResourceManager& manager, int cursorID) {
    DisplayedCursor cursor;
    cursor.source = DisplayedCursor::kResourceCursor;
    cursor.cursorID = cursorID;
    cursor.manager = &manager;
    displayed() = cursor;
}

const DisplayedCursor& GetDisplayedCursor() {
    return displayed();
}

}  // namespace utility
}  // namespace zebui
