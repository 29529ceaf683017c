// An image of the toolkit: fixed pixels that a surface draws with DrawImage.
#pragma once

#include "zebcore/utility/RefCountedObject.h"

namespace zebui {
namespace inkwell {

class ImageInterface : public zebcore::utility::RefCountedObject {
public:
    virtual int GetWidth() const = 0;
    virtual int GetHeight() const = 0;
};

}  // namespace inkwell
}  // namespace zebui
