// A control that shows an image.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_ControlView.h"

namespace zebui {
namespace controls {

// Shows the image its picture supply function hands it for the name.
class UI_StaticImage : public UI_ControlView {
public:
    UI_StaticImage();
    ~UI_StaticImage() override;

    // 8-bit text, kept as given; empty means no image.
    void SetImageName(const zebcore::UTF8String& name);
    const zebcore::UTF8String& GetImageName() const { return mImageName; }

private:
    zebcore::UTF8String mImageName;
};

}  // namespace controls
}  // namespace zebui
