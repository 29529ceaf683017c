// Holder of a surface that a supplier makes over another surface.
#pragma once

#include "zebcore/geom/Geometry.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/utility/PImpl.h"

namespace zebui {
namespace inkwell {

class SupplierInterface;

class SurfaceP : public utility::SharedPImpl<SurfaceInterface> {
public:
    SurfaceP(const SupplierInterface* supplierP, SurfaceInterface* parent, bool inheritState,
             const zebcore::geom::RectT<int>* rect);
    // Replaces the held surface; with no supplier it reports and keeps the old one.
    void New(const SupplierInterface* supplierP, SurfaceInterface* parent, bool inheritState,
             const zebcore::geom::RectT<int>* rect);
};

}  // namespace inkwell
}  // namespace zebui
