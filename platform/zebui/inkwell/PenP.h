// Holder of a pen made by a supplier.
#pragma once

#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/PenInterface.h"
#include "zebui/utility/PImpl.h"

namespace zebui {
namespace inkwell {

class SupplierInterface;

class PenP : public utility::SharedPImpl<PenInterface> {
public:
    PenP(const SupplierInterface* supplierP, const ColorRGBA& colour, float width);
    // Replaces the held pen; with no supplier it reports and keeps the old one.
    void New(const SupplierInterface* supplierP, const ColorRGBA& colour, float width);
};

}  // namespace inkwell
}  // namespace zebui
