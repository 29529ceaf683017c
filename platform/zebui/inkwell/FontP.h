// Holder of a font made by a supplier.
#pragma once

#include "zebui/inkwell/FontInterface.h"
#include "zebui/utility/PImpl.h"

namespace zebui {
namespace inkwell {

class SupplierInterface;

// family and style are zero-terminated UTF-16; style may be null.
class FontP : public utility::SharedPImpl<FontInterface> {
public:
    FontP(const SupplierInterface* supplierP, const unsigned short* family,
          const unsigned short* style, float size);
    // Replaces the held font; with no supplier it reports and keeps the old one.
    void New(const SupplierInterface* supplierP, const unsigned short* family,
             const unsigned short* style, float size);
};

}  // namespace inkwell
}  // namespace zebui
