// Holder of a brush made by a supplier.
#pragma once

#include "zebui/inkwell/BrushInterface.h"
#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/utility/PImpl.h"

namespace zebui {
namespace inkwell {

class SupplierInterface;

class BrushP : public utility::SharedPImpl<BrushInterface> {
public:
    BrushP(const SupplierInterface* supplierP, const ColorRGBA& colour);
    // Replaces the held brush; with no supplier it reports and keeps the old one.
    void New(const SupplierInterface* supplierP, const ColorRGBA& colour);
};

}  // namespace inkwell
}  // namespace zebui
