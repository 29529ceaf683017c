// The label every control that shows a text carries: its text, size and alignment.
#pragma once

#include "zebcore/geom/RectT.h"
#include "zebcore/utility/Strings.h"
#include "zebui/inkwell/InkwellTypes.h"

namespace zebui {
namespace inkwell {
class Inkwell;
struct ColorRGBA;
}  // namespace inkwell

namespace ui {
class UI_Node;
}  // namespace ui

namespace controls {

// The toolkit's font size ids; any other id draws at the regular size.
enum FontSizeId : int {
    kFontSizeId_Regular = 0,
    kFontSizeId_Small = 1,
    kFontSizeId_Mini = 2,
    kFontSizeId_Large = 3,
};

// A further base beside the node class, reached from a node by dynamic_cast. It keeps a
// reference to the node it belongs to (its own subobject's owner), so it never outlives it.
// Every change of the label redraws the whole node; none is a change of the control's value.
class UI_TextControlBase {
public:
    virtual ~UI_TextControlBase();

    virtual void SetLabelText(const zebcore::UTF16String& text);
    virtual zebcore::UTF16String GetLabelText() const;
    virtual void SetFontSizeId(int id);
    int GetFontSizeId() const { return mFontSizeId; }
    // Where the label is drawn, in the node's own coordinates: the whole node unless the
    // class keeps part of it for something else.
    virtual zebcore::geom::RectT<float> GetLabelTextRect() const;
    // Any value is kept; one the drawing doesn't know draws as left aligned.
    virtual void SetTextAlignment(inkwell::TextAlignment alignment);
    inkwell::TextAlignment GetTextAlignment() const { return mAlignment; }
    // A text size in units in place of the size id's; 0 (the start) keeps the id's.
    virtual void SetCustomFontSize(float size);
    float GetCustomFontSize() const { return mCustomFontSize; }

    // The size the label's text is drawn at.
    float GetTextSize() const;

protected:
    // owner: the node this is a base of, passed as static_cast<ui::UI_Node&>(*this) (the
    // cast keeps the deleted copy out of the choice).
    explicit UI_TextControlBase(ui::UI_Node& owner);
    UI_TextControlBase(const UI_TextControlBase&) = delete;
    UI_TextControlBase& operator=(const UI_TextControlBase&) = delete;

    const ui::UI_Node& GetTextOwner() const { return mOwner; }
    // Redraws the whole owner.
    void TextChanged();
    // text in area at the label's size and alignment, in colour or else the theme's text
    // colour.
    void DrawLabelText(inkwell::Inkwell* inkwell, const zebcore::UTF16String& text,
                       const zebcore::geom::RectT<float>& area,
                       const inkwell::ColorRGBA* colour = nullptr) const;

private:
    ui::UI_Node& mOwner;
    zebcore::UTF16String mLabel;
    int mFontSizeId = kFontSizeId_Regular;
    inkwell::TextAlignment mAlignment = inkwell::kTextAlignment_Left;
    float mCustomFontSize = 0;
};

}  // namespace controls
}  // namespace zebui
