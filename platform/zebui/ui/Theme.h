// The theme: the colours the toolkit draws with, by index, and the named themes.
#pragma once

#include <map>
#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/RefCountedObject.h"
#include "zebcore/utility/Strings.h"
#include "zebui/inkwell/ColorRGBA.h"

namespace zebui {
namespace ui {

// Indices below the theme's colour count have a default colour from the start; any other
// index, the application's from 10000 up included, has a colour only once it is set.
// GetColor of an index without a colour answers opaque black.
class Theme : public zebcore::utility::RefCountedObject {
public:
    static constexpr unsigned long kStandardColorCount = 379;
    static constexpr unsigned long kStandardFontCount = 3;

    Theme(unsigned long colorCount, unsigned long fontCount);
    ~Theme() override;

    unsigned long GetColorCount() const { return static_cast<unsigned long>(mDefaults.size()); }
    unsigned long GetFontCount() const { return mFontCount; }

    virtual bool HasColor(unsigned long index) const;
    virtual inkwell::ColorRGBA GetColor(unsigned long index) const;
    virtual void SetColor(unsigned long index, const inkwell::ColorRGBA& colour);

    // The current theme, made with the standard counts on first use. Never null.
    static Theme* Get();
    // A name registered twice keeps the later theme; the store holds a reference.
    static void RegisterTheme(const zebcore::UTF16String& name, boost::intrusive_ptr<Theme> theme);
    static boost::intrusive_ptr<Theme> FindTheme(const zebcore::UTF16String& name);
    // Forgets every registered theme and makes the current one anew, so that what one
    // script set is gone for the next. The host calls it when a Lua state closes.
    static void ResetThemes();

    // The standard default of an index below kStandardColorCount.
    static inkwell::ColorRGBA DefaultColor(unsigned long index);
    // How many themes are alive, for tests of who holds them.
    static int GetLiveCount();

private:
    std::vector<inkwell::ColorRGBA> mDefaults;
    std::map<unsigned long, inkwell::ColorRGBA> mSet;
    unsigned long mFontCount;
};

// The colour of the current theme.
inkwell::ColorRGBA GetColor(unsigned long index);

}  // namespace ui
}  // namespace zebui
