// A view with a titled section that opens and closes.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace controls {

class UI_SectionView : public ui::UI_SubView {
public:
    UI_SectionView(const zebcore::UTF16String& title, bool flag);
    ~UI_SectionView() override;
};

}  // namespace controls
}  // namespace zebui
