// A brush of the toolkit: the solid colour that fills paths and text.
#pragma once

#include "zebcore/utility/RefCountedObject.h"
#include "zebui/inkwell/ColorRGBA.h"

namespace zebui {
namespace inkwell {

class BrushInterface : public zebcore::utility::RefCountedObject {
public:
    virtual ColorRGBA GetColor() const = 0;
};

}  // namespace inkwell
}  // namespace zebui
