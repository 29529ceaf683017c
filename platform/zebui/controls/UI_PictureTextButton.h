// A text button that also shows an image.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/controls/PictureSupplyClient.h"
#include "zebui/controls/UI_TextButton.h"

namespace zebui {
namespace controls {

// A text button, not a picture button: its image comes from its picture supply function
// by a base name, as a picture button's does, and sits in a square at the leading edge of
// the content rect, the label after it.
class UI_PictureTextButton : public UI_TextButton, public PictureSupplyClient {
public:
    UI_PictureTextButton();
    ~UI_PictureTextButton() override;

    // 8-bit text, kept as given; empty means no image.
    virtual void SetImageBaseName(const zebcore::UTF8String& name);
    const zebcore::UTF8String& GetImageBaseName() const { return mImageBaseName; }

    // The text button's label rect after the image's square and a gap.
    zebcore::geom::RectT<float> GetLabelTextRect() const override;

protected:
    // The button's face, the supplied image (state flag 2 while the pointer is over the
    // button), then the label.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    zebcore::geom::RectT<float> imageSquare() const;

    zebcore::UTF8String mImageBaseName;
};

}  // namespace controls
}  // namespace zebui
