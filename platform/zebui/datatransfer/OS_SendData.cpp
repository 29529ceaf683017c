// Send data: a buffer of typed data, published to the clipboard or carried by a drag.
#include "zebui/datatransfer/OS_SendData.h"

#include "zebui/datatransfer/Clipboard.h"
#include "zebui/datatransfer/DataTypes.h"
#include "zebui/datatransfer/DragSession.h"

namespace zebui {
namespace datatransfer {

OS_SendData::OS_SendData(const ui::OS_Event& event) : mEvent(event) {}

OS_SendData::~OS_SendData() = default;

void OS_SendData::PutAsString(const zebcore::UTF16String& type, const zebcore::UTF16String& text) {
    mData.PutText(type, text);
}

void OS_SendData::PutText(const zebcore::UTF16String& text) {
    mData.PutText(kUnicodeTextType, text);
}

void OS_SendData::PutRawData(const zebcore::UTF16String& type, DataBytes bytes) {
    mData.Put(type, std::move(bytes));
}

void OS_SendData::DoDragAndDrop(int allowedEffects, int* effect) {
    // Ends the drag's hold on this object however the run ends; the last hold of a
    // disposed object deletes it, after which nothing here may touch a member.
    class DragHold {
    public:
        explicit DragHold(OS_SendData& data) : mData(data) { ++mData.mDragDepth; }
        ~DragHold() {
            if (--mData.mDragDepth == 0 && mData.mDisposed) delete &mData;
        }
        DragHold(const DragHold&) = delete;
        DragHold& operator=(const DragHold&) = delete;

    private:
        OS_SendData& mData;
    };
    int result = kDropEffectNone;
    {
        const DragHold held(*this);
        result = RunDragAndDrop(mData, allowedEffects, mEvent);
    }
    if (effect) *effect = result;
}

void OS_SendData::PutOnClipboard() {
    SetClipboardContents(mData);
}

void OS_SendData::Dispose(OS_SendData* data) {
    if (!data) return;
    if (data->mDragDepth > 0)
        data->mDisposed = true;
    else
        delete data;
}

std::unique_ptr<OS_SendData> NewClipboardSendData() {
    return std::make_unique<OS_SendData>(ui::OS_Event());
}

}  // namespace datatransfer
}  // namespace zebui
