// Data keyed by type: what a send object buffers, the clipboard holds and a drag carries.
#pragma once

#include <utility>
#include <vector>

#include "zebcore/utility/Strings.h"

namespace zebui {
namespace datatransfer {

using DataBytes = std::vector<unsigned char>;

// Each type once, in the order it was first put. Text is kept as UTF-8 bytes, so text
// put under a custom type reads back as that type's raw bytes too.
class DataStore {
public:
    // Replaces what the type held. Types that are neither built in nor registered are
    // refused with an assertion report: they have no flavour to travel as.
    void Put(const zebcore::UTF16String& type, DataBytes bytes);
    void PutText(const zebcore::UTF16String& type, const zebcore::UTF16String& text);

    bool Has(const zebcore::UTF16String& type) const { return Find(type) != nullptr; }
    // Null when the type is missing.
    const DataBytes* Find(const zebcore::UTF16String& type) const;
    // The type's bytes read as UTF-8; empty when the type is missing.
    zebcore::UTF16String TextOf(const zebcore::UTF16String& type) const;

    std::vector<zebcore::UTF16String> Types() const;
    // Entries by position, 0 up to Count(), in put order.
    size_t Count() const { return mEntries.size(); }
    const zebcore::UTF16String& TypeAt(size_t index) const { return mEntries[index].first; }
    const DataBytes& BytesAt(size_t index) const { return mEntries[index].second; }
    bool Empty() const { return mEntries.empty(); }
    void Clear() { mEntries.clear(); }

private:
    std::vector<std::pair<zebcore::UTF16String, DataBytes>> mEntries;
};

}  // namespace datatransfer
}  // namespace zebui
