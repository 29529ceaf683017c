// A button drawn from images.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/controls/PictureSupplyClient.h"
#include "zebui/controls/UI_Button.h"

namespace zebui {
namespace controls {

// The button draws whatever image its picture supply function hands it for the present
// state; the base name is what that function derives the state images' names from.
class UI_PictureButton : public UI_Button, public PictureSupplyClient {
public:
    UI_PictureButton();
    ~UI_PictureButton() override;

    // 8-bit text, kept as given; empty means no image.
    virtual void SetImageBaseName(const zebcore::UTF8String& name);
    const zebcore::UTF8String& GetImageBaseName() const { return mImageBaseName; }

protected:
    bool DrawsContainer() const override { return false; }
    bool DrawsBorder() const override { return false; }
    // The supplied image over the content rect, in place of the plain button's face;
    // state flag 2 while the pointer is over it.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    zebcore::UTF8String mImageBaseName;
};

}  // namespace controls
}  // namespace zebui
