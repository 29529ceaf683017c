// The part of a node that selects a named theme for itself and what it contains.
#pragma once

#include "zebcore/utility/Strings.h"

namespace zebui {
namespace ui {

// The headless toolkit only keeps the name; drawing reads it when themes exist.
class ThemeOwner {
public:
    virtual ~ThemeOwner();

    // flags are the toolkit's; the binding passes 0.
    virtual void SetThemeName(const zebcore::UTF16String& name, unsigned int flags);
    const zebcore::UTF16String& GetThemeName() const { return mThemeName; }

protected:
    ThemeOwner() = default;

private:
    zebcore::UTF16String mThemeName;
};

}  // namespace ui
}  // namespace zebui
