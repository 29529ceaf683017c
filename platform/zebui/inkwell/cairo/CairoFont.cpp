// A font as Pango finds it.
#include "zebui/inkwell/cairo/CairoFont.h"

#include <utility>

#include "zebui/inkwell/cairo/CairoText.h"

namespace zebui {
namespace inkwell {

CairoFont::CairoFont(zebcore::UTF16String family, zebcore::UTF16String style, float size)
    : mFamily(std::move(family)), mStyle(std::move(style)), mSize(size) {}

float CairoFont::MeasureText(const zebcore::UTF16String& text, int length) const {
    return MeasureTextWidth(*this, text, length);
}

}  // namespace inkwell
}  // namespace zebui
