// A font as Pango finds it: a family, an optional style and a size in surface units.
#pragma once

#include "zebui/inkwell/FontInterface.h"

namespace zebui {
namespace inkwell {

// The size is an absolute size in surface units: a 12 pixel font is 12 units high at an
// identity transform, whatever the screen's resolution, so points and pixels are one here.
// A size that is not positive draws nothing and measures 0; sizes above 4096 are taken as
// 4096.
class CairoFont : public FontInterface {
public:
    CairoFont(zebcore::UTF16String family, zebcore::UTF16String style, float size);

    float MeasureText(const zebcore::UTF16String& text, int length) const override;
    const zebcore::UTF16String& GetFamily() const override { return mFamily; }
    const zebcore::UTF16String& GetStyle() const override { return mStyle; }
    float GetSize() const override { return mSize; }

private:
    zebcore::UTF16String mFamily;
    zebcore::UTF16String mStyle;
    float mSize;
};

}  // namespace inkwell
}  // namespace zebui
