// The base of the toolkit's small holders that own one counted implementation object.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/debug/Debug.h"

namespace zebui {
namespace utility {

// Holds one reference on a counted T. The holder may be empty (its maker had no
// supplier); using it then makes a report and yields null.
template <typename T> class SharedPImpl {
public:
    virtual ~SharedPImpl() = default;

    T* operator->() const {
        // The toolkit's reports name the header by its path from the toolkit's build.
        ZEB_ASSERT_MSG_IN_FILE(mScPtr.get() != 0, "mScPtr.get() != 0",
                               "../../../zebui/utility/PImpl.h");
        return mScPtr.get();
    }

    boost::intrusive_ptr<T> mScPtr;

protected:
    // Takes a new object: nothing happens when it is the one already held, otherwise it
    // gains a reference and the old one loses its own, which may delete it.
    void Assign(T* object) {
        if (object != mScPtr.get()) mScPtr = object;
    }
};

}  // namespace utility
}  // namespace zebui
