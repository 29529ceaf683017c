// The pointer's cursor. Headless, nothing is shown: the last request is remembered so a
// host or a test can see it.
#pragma once

#include <cstdint>

#include <boost/intrusive_ptr.hpp>

#include "zebui/inkwell/ImageInterface.h"

namespace zebui {
namespace utility {

class ResourceManager;

struct DisplayedCursor {
    enum Source { kNone, kResourceCursor, kImageCursor };
    Source source = kNone;
    // kResourceCursor: the cursor's number and the manager it was asked of.
    int cursorID = 0;
    const ResourceManager* manager = nullptr;
    // kImageCursor: the image, held as long as it is the cursor, and its hot spot.
    boost::intrusive_ptr<inkwell::ImageInterface> image;
    int16_t hotX = 0;
    int16_t hotY = 0;
};

// Shows image as the cursor; the hot spot is taken as given, -1 included.
void DisplayCursorFromImage(const boost::intrusive_ptr<inkwell::ImageInterface>& image,
                            int16_t hotX, int16_t hotY);
// Shows a numbered cursor of manager (ResourceManager::DisplayCursor).
void DisplayResourceCursor(const ResourceManager& manager, int cursorID);
// The last cursor shown; kNone before any.
const DisplayedCursor& GetDisplayedCursor();

}  // namespace utility
}  // namespace zebui
