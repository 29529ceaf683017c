// Type registration and drop effect rules of the data transfer stand-in.
#include "zebui/datatransfer/DataTypes.h"

#include <set>

#include "zebcore/debug/Debug.h"

namespace zebui {
namespace datatransfer {
namespace {

// Process-wide, as the platform's flavour table is; never destroyed, so no static
// destructor can run after a late registration.
std::set<zebcore::UTF16String>& registeredTypes() {
    static auto* types = new std::set<zebcore::UTF16String>;
    return *types;
}

bool sDefaultCursorSupport = true;

}  // namespace

int AllowedDropEffect(int effect, int allowed) {
    const bool single =
        effect == kDropEffectCopy || effect == kDropEffectMove || effect == kDropEffectLink;
    return single && (effect & allowed) != 0 ? effect : kDropEffectNone;
}

void RegisterCustomDataType(const zebcore::UTF16String& name) {
    ZEB_ASSERT_MSG(!name.empty(), "a custom data type needs a name");
    if (name.empty() || IsDataTypeKnown(name)) return;
    registeredTypes().insert(name);
}

bool IsDataTypeKnown(const zebcore::UTF16String& name) {
    return name == kFilesType || name == kUnicodeTextType || registeredTypes().count(name) != 0;
}

void SetDefaultCursorSupport(bool enabled) {
    sDefaultCursorSupport = enabled;
}

bool GetDefaultCursorSupport() {
    return sDefaultCursorSupport;
}

}  // namespace datatransfer
}  // namespace zebui
