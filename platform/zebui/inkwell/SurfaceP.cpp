// Holder of a surface that a supplier makes over another surface.
#include "zebui/inkwell/SurfaceP.h"

#include "zebcore/debug/Debug.h"
#include "zebui/inkwell/SupplierInterface.h"

namespace zebui {
namespace inkwell {

SurfaceP::SurfaceP(const SupplierInterface* supplierP, SurfaceInterface* parent, bool inheritState,
                   const zebcore::geom::RectT<int>* rect) {
    New(supplierP, parent, inheritState, rect);
}

void SurfaceP::New(const SupplierInterface* supplierP, SurfaceInterface* parent, bool inheritState,
                   const zebcore::geom::RectT<int>* rect) {
    ZEB_ASSERT_MSG(supplierP, "supplierP");
    if (!supplierP) return;
    Assign(supplierP->MakeSurface(parent, inheritState, rect));
}

}  // namespace inkwell
}  // namespace zebui
