// The process-wide clipboard store.
#include "zebui/datatransfer/Clipboard.h"

namespace zebui {
namespace datatransfer {
namespace {

struct ClipboardState {
    DataStore contents;
    unsigned long changes = 0;
};

// Never destroyed: receive data may read it from a static destructor of a host.
ClipboardState& clipboard() {
    static auto* state = new ClipboardState;
    return *state;
}

}  // namespace

const DataStore& GetClipboardContents() {
    return clipboard().contents;
}

void SetClipboardContents(const DataStore& contents) {
    ClipboardState& state = clipboard();
    state.contents = contents;
    ++state.changes;
}

unsigned long GetClipboardChangeCount() {
    return clipboard().changes;
}

}  // namespace datatransfer
}  // namespace zebui
