// A control that shows an image.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/controls/PictureSupplyClient.h"
#include "zebui/controls/UI_ControlView.h"

namespace zebui {
namespace controls {

// Shows the image its picture supply function hands it for the name.
class UI_StaticImage : public UI_ControlView, public PictureSupplyClient {
public:
    UI_StaticImage();
    ~UI_StaticImage() override;

    // 8-bit text, kept as given; empty means no image.
    void SetImageName(const zebcore::UTF8String& name);
    const zebcore::UTF8String& GetImageName() const { return mImageName; }
    // The opacity the image is drawn at, kept as given (1 at the start); drawn within 0 to 1.
    float GetAlpha() const { return mAlpha; }
    void SetAlpha(float alpha);

protected:
    // The supplied image, plain state, scaled to the whole control.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    zebcore::UTF8String mImageName;
    float mAlpha = 1.0f;
};

}  // namespace controls
}  // namespace zebui
