// A shader of the toolkit: a gradient that fills a path in place of a solid colour.
#pragma once

#include "zebcore/utility/RefCountedObject.h"

namespace zebui {
namespace inkwell {

// Opaque to its users: only a surface of the supplier that made it knows how to apply it.
// Its geometry is in the user space current at the time of the ShadePath call.
class ShaderInterface : public zebcore::utility::RefCountedObject {};

}  // namespace inkwell
}  // namespace zebui
