// A view with a titled section that opens and closes.
#include "zebui/controls/UI_SectionView.h"

namespace zebui {
namespace controls {

UI_SectionView::UI_SectionView(const zebcore::UTF16String& /*title*/, bool /*flag*/) {}

UI_SectionView::~UI_SectionView() = default;

}  // namespace controls
}  // namespace zebui
