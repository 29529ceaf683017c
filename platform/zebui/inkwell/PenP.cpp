// Holder of a pen made by a supplier.
#include "zebui/inkwell/PenP.h"

#include "zebcore/debug/Debug.h"
#include "zebui/inkwell/SupplierInterface.h"

namespace zebui {
namespace inkwell {

PenP::PenP(const SupplierInterface* supplierP, const ColorRGBA& colour, float width) {
    New(supplierP, colour, width);
}

void PenP::New(const SupplierInterface* supplierP, const ColorRGBA& colour, float width) {
    ZEB_ASSERT_MSG(supplierP, "supplierP");
    if (!supplierP) return;
    Assign(supplierP->MakePen(colour, width));
}

}  // namespace inkwell
}  // namespace zebui
