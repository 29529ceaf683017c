// The clipboard: one store keyed by type for the whole process.
#pragma once

#include "zebui/datatransfer/DataStore.h"

namespace zebui {
namespace datatransfer {

// What the clipboard holds now.
const DataStore& GetClipboardContents();
// Replaces everything the clipboard held, as publishing does on every platform.
void SetClipboardContents(const DataStore& contents);
// How many times the contents were replaced, so a reader can tell a new publication.
unsigned long GetClipboardChangeCount();

}  // namespace datatransfer
}  // namespace zebui
