// One tab of a tab well.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace controls {

// Drawn as a tab with its text, raised while it is the front-most, with a close box at
// its right end when it is closable. The well handles its clicks.
class UI_TabItem : public ui::UI_Node {
public:
    UI_TabItem(const zebcore::UTF16String& text, bool closable);
    ~UI_TabItem() override;

    const zebcore::UTF16String& GetText() const { return mText; }
    bool IsClosable() const { return mClosable; }
    bool IsFrontmost() const { return mFrontmost; }
    void SetFrontmost(bool frontmost);
    // The close box in the tab's own coordinates; empty for a tab that can't be closed.
    zebcore::geom::RectT<float> GetCloseBoxRect() const;

    static constexpr float kCloseBoxSize = 10.0f;

protected:
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    zebcore::UTF16String mText;
    bool mClosable;
    bool mFrontmost = false;
};

}  // namespace controls
}  // namespace zebui
