// A view with a titled section that opens and closes.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace controls {

class UI_SectionView : public ui::UI_SubView {
public:
    UI_SectionView(const zebcore::UTF16String& title, bool opened);
    ~UI_SectionView() override;

    const zebcore::UTF16String& GetTitle() const { return mTitle; }
    bool IsOpened() const { return mOpened; }

    // The height of the title bar above the section's content.
    static constexpr float kTitleBarHeight = 18.0f;

protected:
    // The title bar with its title.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    zebcore::UTF16String mTitle;
    bool mOpened;
};

}  // namespace controls
}  // namespace zebui
