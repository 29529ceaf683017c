// A button that opens a menu of choices and shows the chosen one.
#include "zebui/controls/UI_Popup.h"

#include "zebui/controls/ControlFace.h"
#include "zebui/utility/OS_Menu.h"

namespace zebui {
namespace controls {
namespace {

// Room for the arrow at the right, and the text's inset at the left.
constexpr float kArrowRoom = 18.0f;
constexpr float kTextInset = 6.0f;

}  // namespace

UI_Popup::UI_Popup(int popupType, bool /*flag*/)
    : UI_TextControlBase(static_cast<ui::UI_Node&>(*this)), mPopupType(popupType) {}

UI_Popup::~UI_Popup() = default;

void UI_Popup::AddItem(const zebcore::UTF16String& item) {
    mItems.push_back(item);
}

void UI_Popup::DeleteAllItems() {
    mItems.clear();
}

void UI_Popup::SetValueString(const zebcore::UTF16String& text, bool notify) {
    if (notify) {
        ChangeValue(mValueString, text);
    } else {
        mValueString = text;
    }
    TextChanged();
}

void UI_Popup::SetTightMargins(bool tight) {
    mTightMargins = tight;
    TextChanged();
}

zebcore::geom::RectT<float> UI_Popup::GetLabelTextRect() const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const float inset = mTightMargins ? kTextInset / 2 : kTextInset;
    return {inset, 0, bounds.width - inset - kArrowRoom, bounds.height};
}

void UI_Popup::UI_TrackPointer(InteractiveChangePhase phase,
                               const zebcore::geom::PointT<float>& where) {
    if (phase == kInteractiveChange_Finish && ContainsLocalPoint(where) && !mItems.empty())
        chooseFromMenu();
}

void UI_Popup::chooseFromMenu() {
    const auto keep = ui::KeepNodeAlive(this);  // the menu's run may drop every other holder
    // A native menu whose ids are the item numbers, so an answer names an item from 1.
    const boost::intrusive_ptr<utility::OS_Menu> menu = utility::CreateOSMenu();
    for (size_t index = 0; index < mItems.size(); ++index)
        menu->AppendItem(mItems[index], static_cast<int>(index + 1), nullptr);
    const int chosen = ui::UI_DoPopupMenu(menu.get(), this, face::Bounds(*this), true);
    // The run may have run script that changed the items.
    if (chosen < 1 || size_t(chosen) > mItems.size()) return;
    const zebcore::UTF16String item = mItems[size_t(chosen) - 1];
    SetValueString(item, true);
}

void UI_Popup::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    UI_Button::UI_DrawFace(inkwell);
    DrawLabelText(inkwell, mValueString.empty() ? GetLabelText() : mValueString,
                  GetLabelTextRect());
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const float middle = bounds.height / 2;
    const float right = bounds.width - 6;
    const zebcore::geom::PointT<float> arrow[] = {
        {right - 8, middle - 2}, {right, middle - 2}, {right - 4, middle + 3}};
    face::FillPolygon(inkwell, arrow, 3, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui
