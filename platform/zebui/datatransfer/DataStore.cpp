// The typed byte store behind send data, the clipboard and drags.
#include "zebui/datatransfer/DataStore.h"

#include "zebcore/debug/Debug.h"
#include "zebui/datatransfer/DataTypes.h"

namespace zebui {
namespace datatransfer {

void DataStore::Put(const zebcore::UTF16String& type, DataBytes bytes) {
    const bool known = IsDataTypeKnown(type);
    ZEB_ASSERT_MSG(known, "data of an unregistered type is not put");
    if (!known) return;
    for (auto& entry : mEntries) {
        if (entry.first == type) {
            entry.second = std::move(bytes);
            return;
        }
    }
    mEntries.emplace_back(type, std::move(bytes));
}

void DataStore::PutText(const zebcore::UTF16String& type, const zebcore::UTF16String& text) {
    const zebcore::UTF8String utf8 = zebcore::utility::UTF16to8(text);
    Put(type, DataBytes(utf8.begin(), utf8.end()));
}

const DataBytes* DataStore::Find(const zebcore::UTF16String& type) const {
    for (const auto& entry : mEntries)
        if (entry.first == type) return &entry.second;
    return nullptr;
}

zebcore::UTF16String DataStore::TextOf(const zebcore::UTF16String& type) const {
    const DataBytes* bytes = Find(type);
    if (!bytes) return zebcore::UTF16String();
    return zebcore::utility::UTF8to16(zebcore::UTF8String(bytes->begin(), bytes->end()));
}

std::vector<zebcore::UTF16String> DataStore::Types() const {
    std::vector<zebcore::UTF16String> types;
    for (const auto& entry : mEntries)
        types.push_back(entry.first);
    return types;
}

}  // namespace datatransfer
}  // namespace zebui
