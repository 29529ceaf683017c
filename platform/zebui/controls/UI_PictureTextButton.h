// A text button that also shows an image.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_TextButton.h"

namespace zebui {
namespace controls {

// A text button, not a picture button: its image comes from a picture supply function
// by a base name, as a picture button's does.
class UI_PictureTextButton : public UI_TextButton {
public:
    UI_PictureTextButton();
    ~UI_PictureTextButton() override;

    // 8-bit text, kept as given; empty means no image.
    virtual void SetImageBaseName(const zebcore::UTF8String& name);
    const zebcore::UTF8String& GetImageBaseName() const { return mImageBaseName; }

private:
    zebcore::UTF8String mImageBaseName;
};

}  // namespace controls
}  // namespace zebui
