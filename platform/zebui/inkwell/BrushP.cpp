// Holder of a brush made by a supplier.
#include "zebui/inkwell/BrushP.h"

#include "zebcore/debug/Debug.h"
#include "zebui/inkwell/SupplierInterface.h"

namespace zebui {
namespace inkwell {

BrushP::BrushP(const SupplierInterface* supplierP, const ColorRGBA& colour) {
    New(supplierP, colour);
}

void BrushP::New(const SupplierInterface* supplierP, const ColorRGBA& colour) {
    ZEB_ASSERT_MSG(supplierP, "supplierP");
    if (!supplierP) return;
    Assign(supplierP->MakeBrush(colour));
}

}  // namespace inkwell
}  // namespace zebui
