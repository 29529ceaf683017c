// Holder of a path made by a supplier.
#include "zebui/inkwell/PathP.h"

#include "zebcore/debug/Debug.h"
#include "zebui/inkwell/SupplierInterface.h"

namespace zebui {
namespace inkwell {

PathP::PathP(const SupplierInterface* supplierP) {
    New(supplierP);
}

void PathP::New(const SupplierInterface* supplierP) {
    ZEB_ASSERT_MSG(supplierP, "supplierP");
    if (!supplierP) return;
    Assign(supplierP->MakePath());
}

}  // namespace inkwell
}  // namespace zebui
