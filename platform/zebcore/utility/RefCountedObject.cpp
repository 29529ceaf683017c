// Reference counting with self-deletion at zero.
#include "zebcore/utility/RefCountedObject.h"

#include "zebcore/debug/Debug.h"

namespace zebcore {
namespace utility {

RefCountedObject::~RefCountedObject() {
    ZEB_ASSERT(mReferenceCount == 0);
}

void RefCountedObject::RemoveReference() const {
    if (mReferenceCount.fetch_add(-1) == 1 && !mDestroying && !mKeepAlive) {
        mDestroying = 1;
        delete this;
    }
}

}  // namespace utility
}  // namespace zebcore
