// Holder of a font made by a supplier.
#include "zebui/inkwell/FontP.h"

#include "zebcore/debug/Debug.h"
#include "zebui/inkwell/SupplierInterface.h"

namespace zebui {
namespace inkwell {

FontP::FontP(const SupplierInterface* supplierP, const unsigned short* family,
             const unsigned short* style, float size) {
    New(supplierP, family, style, size);
}

void FontP::New(const SupplierInterface* supplierP, const unsigned short* family,
                const unsigned short* style, float size) {
    ZEB_ASSERT_MSG(supplierP, "supplierP");
    if (!supplierP) return;
    Assign(supplierP->MakeFont(family, style, size));
}

}  // namespace inkwell
}  // namespace zebui
