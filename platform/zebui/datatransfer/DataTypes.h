// The type names and drop effects of the toolkit's clipboard and drag and drop, and the
// custom types a program registers.
#pragma once

#include "zebcore/utility/Strings.h"

namespace zebui {
namespace datatransfer {

// Built-in flavours. Files travel as their full paths, one a line.
constexpr char16_t kFilesType[] = u"zebui.files";
constexpr char16_t kUnicodeTextType[] = u"zebui.unicode-text";

// Drop effects are bits; a drag offers a combination and ends with one of them or none.
enum DropEffect {
    kDropEffectNone = 0,
    kDropEffectCopy = 1,
    kDropEffectMove = 4,
    kDropEffectLink = 8,
};

// effect when it is exactly one drop effect that allowed offers, otherwise none.
int AllowedDropEffect(int effect, int allowed);

// A custom type must be registered before data of it can be put anywhere: registration
// is what maps its name to a flavour. Registering a built-in name, or a name twice,
// changes nothing; the empty name is refused with an assertion report.
void RegisterCustomDataType(const zebcore::UTF16String& name);
// True for the built-in types and every registered custom type.
bool IsDataTypeKnown(const zebcore::UTF16String& name);

// Whether a drag shows the toolkit's default cursors for its effects (on at start).
void SetDefaultCursorSupport(bool enabled);
bool GetDefaultCursorSupport();

}  // namespace datatransfer
}  // namespace zebui
