// Data a program sends: buffered until it is put on the clipboard or dragged.
#pragma once

#include <memory>

#include "zebcore/utility/Strings.h"
#include "zebui/datatransfer/DataStore.h"
#include "zebui/ui/OS_Event.h"

namespace zebui {
namespace datatransfer {

// Nothing leaves the object until PutOnClipboard or DoDragAndDrop. A drag runs a nested
// loop in which callbacks may delete this very object: Dispose defers that deletion to
// the end of the drag, so whoever owns a send object ends it with Dispose.
class OS_SendData {
public:
    // event: the native event a drag started from this object belongs to.
    explicit OS_SendData(const ui::OS_Event& event);
    virtual ~OS_SendData();
    OS_SendData(const OS_SendData&) = delete;
    OS_SendData& operator=(const OS_SendData&) = delete;

    virtual void PutAsString(const zebcore::UTF16String& type, const zebcore::UTF16String& text);
    virtual void PutText(const zebcore::UTF16String& text);
    // Runs the drag to its end and writes the effect it ended with (none when cancelled).
    virtual void DoDragAndDrop(int allowedEffects, int* effect);
    // Replaces the clipboard's contents with what was put so far.
    virtual void PutOnClipboard();

    // Bytes of a custom type, as a control packs what it drags.
    void PutRawData(const zebcore::UTF16String& type, DataBytes bytes);
    const DataStore& GetData() const { return mData; }
    const ui::OS_Event& GetEvent() const { return mEvent; }

    // Deletes data now, or, while one of its drags runs, when the outermost one ends.
    static void Dispose(OS_SendData* data);

private:
    DataStore mData;
    ui::OS_Event mEvent;
    int mDragDepth = 0;
    bool mDisposed = false;
};

// A send object for the clipboard, bound to no event; the caller owns it.
std::unique_ptr<OS_SendData> NewClipboardSendData();

}  // namespace datatransfer
}  // namespace zebui
