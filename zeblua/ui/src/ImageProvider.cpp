// The picture supply: state image names and their fallback chain.
#include "zeblua/ui/src/ImageProvider.h"

#include "vex/app/App.h"
#include "zebui/controls/PictureSupplyClient.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_PictureSupplyMessage.h"
#include "zebui/controls/UI_PictureTextButton.h"
#include "zebui/controls/UI_StaticImage.h"
#include "zebui/ui/IconType.h"
#include "zebui/ui/MessageFunctionAdapter.h"
#include "zebui/utility/InkwellImageResourceCache.h"
#include "zebworkspace/workspace/Workspace.h"

namespace uit {

namespace {

using zebui::controls::UI_PictureSupplyMessage;
using ImagePtr = boost::intrusive_ptr<zebui::inkwell::ImageInterface>;

// State flags as the supply reads them; mask 4 wins over the others, then 1.
constexpr unsigned kPressedMask = 1;
constexpr unsigned kRolloverMask = 2;
constexpr unsigned kPlainMask = 4;
constexpr int kDarkIconType = 1;

// The base name of the picture controls; empty for any other node.
zebcore::UTF8String imageBaseName(const zebui::ui::UI_Node* control) {
    using namespace zebui::controls;
    if (const auto* button = dynamic_cast<const UI_PictureButton*>(control))
        return button->GetImageBaseName();
    if (const auto* textButton = dynamic_cast<const UI_PictureTextButton*>(control))
        return textButton->GetImageBaseName();
    if (const auto* image = dynamic_cast<const UI_StaticImage*>(control))
        return image->GetImageName();
    return zebcore::UTF8String();
}

const char* stateSuffix(unsigned flags, bool rollover) {
    if (flags & kPlainMask) return "_N";
    if (flags & kPressedMask) return "_P";
    if (rollover && (flags & kRolloverMask)) return "_R";
    return "_N";
}

}  // namespace

ImageProvider* ImageProvider::GetInstance() {
    static ImageProvider sProvider;
    return &sProvider;
}

ImageProvider::~ImageProvider() = default;

void ImageProvider::InstallImageSupply(zebui::controls::PictureSupplyClient& control) {
    control.SetImageSupplyFunction(
        zebui::ui::BindConstMessageFunction(GetInstance(), &ImageProvider::ProvideImage));
}

void ImageProvider::ProvideImage(UI_PictureSupplyMessage* message) {
    GetThemeImage(message, true, true);
}

void ImageProvider::ProvideImage_NoRollover(UI_PictureSupplyMessage* message) {
    GetThemeImage(message, true, false);
}

void ImageProvider::ProvideImage_NoDark(UI_PictureSupplyMessage* message) {
    GetThemeImage(message, false, true);
}

void ImageProvider::ProvideImage_NoDark_NoRollover(UI_PictureSupplyMessage* message) {
    GetThemeImage(message, false, false);
}

ImagePtr ImageProvider::GetImageResource(const zebcore::UTF8String& name) {
    const vex::app::App* app = vex::app::App::GetApp();
    if (!app) return ImagePtr();
    try {
        return app->GetInkwellImageCache()->GetImage(*app->GetAppResourceManager(),
                                                     app->GetWorkspace()->GetSupplier(), name,
                                                     zebui::utility::kImageFileType_PNG);
    } catch (...) {
        // A missing image is only a failed try: the caller's chain goes on.
        return ImagePtr();
    }
}

void ImageProvider::GetThemeImage(UI_PictureSupplyMessage* message, bool dark, bool rollover) {
    if (!message) return;
    const zebcore::UTF8String base = imageBaseName(message->GetControl());
    if (base.empty()) return;
    const unsigned flags = message->GetStateFlags().GetValue();
    const auto darkSuffix = [dark]() {
        return dark && zebui::ui::GetIconType() == kDarkIconType ? "_D" : "";
    };

    ImagePtr image;
    const zebcore::UTF8String stateName = base + stateSuffix(flags, rollover) + darkSuffix();
    if (stateName != base) image = GetImageResource(stateName);
    if (!image && (flags & kPressedMask)) image = GetImageResource(base + "_R" + darkSuffix());
    if (!image) image = GetImageResource(base + "_N" + darkSuffix());
    if (!image) image = GetImageResource(base + "_N");
    if (!image) image = GetImageResource(base);
    if (image) message->SetImage(image);
}

}  // namespace uit
