// A button that opens a menu of choices and shows the chosen one.
#pragma once

#include <vector>

#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_Button.h"
#include "zebui/controls/UI_TextControlBase.h"

namespace zebui {
namespace controls {

// A button, so that the button methods answer on a popup too. Its value is a text, the
// value string: any text, usually one of its items. A click (the up of a press that began
// on it, inside it) opens the menu of items as a modal run of the event loop; an answer
// whose code is an item's number (from 1) chooses that item, any other answer, or a
// cancelled run, chooses nothing. A popup without items opens no menu.
class UI_Popup : public UI_Button, public UI_TextControlBase {
public:
    // popupType is the toolkit's kind of menu (0 the plain one); the flag is kept for the
    // toolkit and means nothing here.
    UI_Popup(int popupType, bool flag);
    ~UI_Popup() override;

    int GetPopupType() const { return mPopupType; }

    void AddItem(const zebcore::UTF16String& item);
    // The value string stays.
    void DeleteAllItems();
    const std::vector<zebcore::UTF16String>& GetItems() const { return mItems; }
    const zebcore::UTF16String& GetValueString() const { return mValueString; }
    // notify: a change of value, reported as any other; else the text is only shown.
    void SetValueString(const zebcore::UTF16String& text, bool notify);
    bool GetTightMargins() const { return mTightMargins; }
    virtual void SetTightMargins(bool tight);
    // Between the text's inset and the arrow.
    zebcore::geom::RectT<float> GetLabelTextRect() const override;

protected:
    // The button's face, the value string (or the label while there is none) and the
    // menu's arrow at the right.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_TrackPointer(InteractiveChangePhase phase,
                         const zebcore::geom::PointT<float>& where) override;

private:
    void chooseFromMenu();

    int mPopupType;
    std::vector<zebcore::UTF16String> mItems;
    zebcore::UTF16String mValueString;
    bool mTightMargins = false;
};

}  // namespace controls
}  // namespace zebui
