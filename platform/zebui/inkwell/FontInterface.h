// A font of the toolkit: a family, an optional style and a size, able to measure text.
#pragma once

#include "zebcore/utility/RefCountedObject.h"
#include "zebcore/utility/Strings.h"

namespace zebui {
namespace inkwell {

// Sizes are in surface units (pixels at an identity transform).
class FontInterface : public zebcore::utility::RefCountedObject {
public:
    // The advance width of the first `length` UTF-16 units of text; -1 means all of it.
    virtual float MeasureText(const zebcore::UTF16String& text, int length) const = 0;

    virtual const zebcore::UTF16String& GetFamily() const = 0;
    // Empty when the font was made without a style.
    virtual const zebcore::UTF16String& GetStyle() const = 0;
    virtual float GetSize() const = 0;
};

}  // namespace inkwell
}  // namespace zebui
