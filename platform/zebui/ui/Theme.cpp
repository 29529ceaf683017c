// The colour store of the themes.
#include "zebui/ui/Theme.h"

namespace zebui {
namespace ui {

namespace {

using inkwell::ColorRGBA;

int sLiveThemes = 0;

boost::intrusive_ptr<Theme>& currentTheme() {
    static boost::intrusive_ptr<Theme> current;
    return current;
}

std::map<zebcore::UTF16String, boost::intrusive_ptr<Theme>>& registeredThemes() {
    static std::map<zebcore::UTF16String, boost::intrusive_ptr<Theme>> themes;
    return themes;
}

// The named colours a script is most likely to ask for; every other standard index is
// a grey of its own, light to dark in steps of a sixteenth, so that neighbours differ.
struct NamedColour {
    unsigned long index;
    ColorRGBA colour;
};
const NamedColour kNamedDefaults[] = {
    {277, ColorRGBA(0.25f, 0.25f, 0.28125f)},    // tab background
    {282, ColorRGBA(0.125f, 0.125f, 0.125f)},    // static text
    {283, ColorRGBA(0.5f, 0.5f, 0.5f)},          // disabled static text
    {295, ColorRGBA(0.375f, 0.375f, 0.40625f)},  // tool bar well, start of its gradient
    {296, ColorRGBA(0.25f, 0.25f, 0.28125f)},    // and its end
    {303, ColorRGBA(0.9375f, 0.9375f, 0.9375f)}  // text on a dark background
};

}  // namespace

Theme::Theme(unsigned long colorCount, unsigned long fontCount) : mFontCount(fontCount) {
    mDefaults.reserve(colorCount);
    for (unsigned long index = 0; index < colorCount; ++index)
        mDefaults.push_back(DefaultColor(index));
    ++sLiveThemes;
}

Theme::~Theme() {
    --sLiveThemes;
}

bool Theme::HasColor(unsigned long index) const {
    return index < mDefaults.size() || mSet.count(index) != 0;
}

ColorRGBA Theme::GetColor(unsigned long index) const {
    const auto set = mSet.find(index);
    if (set != mSet.end()) return set->second;
    return index < mDefaults.size() ? mDefaults[index] : ColorRGBA();
}

void Theme::SetColor(unsigned long index, const ColorRGBA& colour) {
    mSet[index] = colour;
}

Theme* Theme::Get() {
    boost::intrusive_ptr<Theme>& current = currentTheme();
    if (!current) current = new Theme(kStandardColorCount, kStandardFontCount);
    return current.get();
}

void Theme::RegisterTheme(const zebcore::UTF16String& name, boost::intrusive_ptr<Theme> theme) {
    registeredThemes()[name] = std::move(theme);
}

boost::intrusive_ptr<Theme> Theme::FindTheme(const zebcore::UTF16String& name) {
    const auto found = registeredThemes().find(name);
    return found == registeredThemes().end() ? boost::intrusive_ptr<Theme>() : found->second;
}

void Theme::ResetThemes() {
    registeredThemes().clear();
    currentTheme().reset();
}

ColorRGBA Theme::DefaultColor(unsigned long index) {
    for (const NamedColour& named : kNamedDefaults)
        if (named.index == index) return named.colour;
    if (index >= kStandardColorCount) return ColorRGBA();
    const float grey = 1.0f - static_cast<float>(index % 16) / 16.0f;
    return ColorRGBA(grey, grey, grey);
}

int Theme::GetLiveCount() {
    return sLiveThemes;
}

ColorRGBA GetColor(unsigned long index) {
    return Theme::Get()->GetColor(index);
}

}  // namespace ui
}  // namespace zebui
