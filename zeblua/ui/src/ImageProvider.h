// The picture supply of picture controls: images of the application's resources chosen
// by a control's base name, its state and the icon set.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/Strings.h"
#include "zebui/inkwell/ImageInterface.h"

namespace zebui {
namespace controls {
class PictureSupplyClient;
class UI_PictureSupplyMessage;
}  // namespace controls
}  // namespace zebui

namespace uit {

// A singleton with no state of its own, made on first use and kept to the end of the
// process, so a control may hold a supply function bound to it for as long as it lives.
// Each ProvideImage form answers a UI_PictureSupplyMessage with GetThemeImage: with or
// without the dark icon set, with or without rollover images.
class ImageProvider {
public:
    static ImageProvider* GetInstance();
    virtual ~ImageProvider();
    ImageProvider(const ImageProvider&) = delete;
    ImageProvider& operator=(const ImageProvider&) = delete;

    // Makes ProvideImage the control's picture supply function.
    static void InstallImageSupply(zebui::controls::PictureSupplyClient& control);

    void ProvideImage(zebui::controls::UI_PictureSupplyMessage* message);
    void ProvideImage_NoRollover(zebui::controls::UI_PictureSupplyMessage* message);
    void ProvideImage_NoDark(zebui::controls::UI_PictureSupplyMessage* message);
    void ProvideImage_NoDark_NoRollover(zebui::controls::UI_PictureSupplyMessage* message);

    // The application's PNG resource of that name, decoded through the workspace's
    // supplier and cached by the application; null when it cannot be had. Throws nothing.
    static boost::intrusive_ptr<zebui::inkwell::ImageInterface>
    GetImageResource(const zebcore::UTF8String& name);

    // Hands the message the first image found for its control's base name: the state's
    // name (base + "_P", "_R" or "_N", + "_D" for dark icons), then base + "_R" (+ "_D")
    // when pressed, base + "_N" (+ "_D"), base + "_N", and the base name. "_D" is added
    // only when dark is true and GetIconType() is 1, asked at each try. A control with no
    // base name, or no image at all, leaves the message as it was.
    static void GetThemeImage(zebui::controls::UI_PictureSupplyMessage* message, bool dark,
                              bool rollover);

private:
    ImageProvider() = default;
};

}  // namespace uit
