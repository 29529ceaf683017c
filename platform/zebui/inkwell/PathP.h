// Holder of a path made by a supplier.
#pragma once

#include "zebui/inkwell/PathInterface.h"
#include "zebui/utility/PImpl.h"

namespace zebui {
namespace inkwell {

class SupplierInterface;

class PathP : public utility::SharedPImpl<PathInterface> {
public:
    explicit PathP(const SupplierInterface* supplierP);
    // Replaces the held path by a new empty one; with no supplier it reports and keeps it.
    void New(const SupplierInterface* supplierP);
};

}  // namespace inkwell
}  // namespace zebui
