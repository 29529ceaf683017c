// The counted base of everything the toolkit hands around by boost::intrusive_ptr.
#pragma once

#include <atomic>
#include <cstdint>

namespace zebcore {
namespace utility {

// A new object starts at count 0, so the first intrusive_ptr brings it to 1. When
// the count drops from 1 with both flags clear, the object deletes itself.
class RefCountedObject {
public:
    RefCountedObject() = default;
    RefCountedObject(const RefCountedObject&) : RefCountedObject() {}
    RefCountedObject& operator=(const RefCountedObject&) { return *this; }
    virtual ~RefCountedObject();

    void AddReference() const { mReferenceCount.fetch_add(1); }
    void RemoveReference() const;
    int32_t GetReferenceCount() const { return mReferenceCount.load(); }
    bool IsBeingDestroyed() const { return mDestroying != 0; }

    // While set, reaching count 0 does not destroy the object.
    void SetKeepAliveAtZero(bool keep) { mKeepAlive = keep ? 1 : 0; }

protected:
    mutable std::atomic<int32_t> mReferenceCount{0};
    mutable uint8_t mDestroying = 0;
    uint8_t mKeepAlive = 0;
};

inline void intrusive_ptr_add_ref(const RefCountedObject* object) {
    object->AddReference();
}
inline void intrusive_ptr_release(const RefCountedObject* object) {
    object->RemoveReference();
}

}  // namespace utility
}  // namespace zebcore
