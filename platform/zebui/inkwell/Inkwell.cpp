// The toolkit's drawing object.
#include "zebui/inkwell/Inkwell.h"

namespace zebui {
namespace inkwell {

Inkwell::Inkwell(SupplierInterface* supplier, SurfaceInterface* surface)
    : mSupplier(supplier), mSurface(surface) {}

Inkwell::~Inkwell() = default;

}  // namespace inkwell
}  // namespace zebui
