// What a picture control keeps of its picture supply.
#pragma once

#include "zebui/ui/NodeFunctions.h"

namespace zebui {
namespace controls {

// A mixin of the picture controls: the function that answers their picture supply
// messages (UI_PictureSupplyMessage). Without one a picture control draws no image.
class PictureSupplyClient {
public:
    // Replaces the function; null removes it.
    void SetImageSupplyFunction(const ui::ConstMessageFunctionP& supply) { mSupply = supply; }
    const ui::ConstMessageFunctionP& GetImageSupplyFunction() const { return mSupply; }

private:
    ui::ConstMessageFunctionP mSupply;
};

}  // namespace controls
}  // namespace zebui
