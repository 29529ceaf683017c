// Receive data over a typed store.
#include "zebui/datatransfer/OS_ReceiveData.h"

#include "zebui/datatransfer/Clipboard.h"
#include "zebui/datatransfer/DataStore.h"
#include "zebui/datatransfer/DataTypes.h"

namespace zebui {
namespace datatransfer {

OS_ReceiveData::OS_ReceiveData(std::shared_ptr<const DataStore> store) : mStore(std::move(store)) {}

const DataStore& OS_ReceiveData::store() const {
    return mStore ? *mStore : GetClipboardContents();
}

bool OS_ReceiveData::DataAvailable(const zebcore::UTF16String& type) {
    return store().Has(type);
}

void OS_ReceiveData::GetRawData(const zebcore::UTF16String& type,
                                std::vector<unsigned char>& bytes) {
    const DataBytes* found = store().Find(type);
    bytes = found ? *found : DataBytes();
}

bool OS_ReceiveData::GetAsString(const zebcore::UTF16String& type, zebcore::UTF16String& text) {
    if (!store().Has(type)) return false;
    text = store().TextOf(type);
    return true;
}

void OS_ReceiveData::GetAsFiles(std::list<zebcore::filesupport::File>& files,
                                std::list<zebcore::filesupport::Dir>& dirs) {
    const zebcore::UTF8String paths = zebcore::utility::UTF16to8(store().TextOf(kFilesType));
    size_t start = 0;
    while (start < paths.size()) {
        size_t end = paths.find('\n', start);
        if (end == zebcore::UTF8String::npos) end = paths.size();
        const zebcore::UTF16String path =
            zebcore::utility::UTF8to16(paths.substr(start, end - start));
        start = end + 1;
        if (path.empty()) continue;
        const zebcore::filesupport::Dir folder(path);
        if (folder.Exists())
            dirs.push_back(folder);
        else
            files.emplace_back(path);
    }
}

bool OS_ReceiveData::GetAsText(zebcore::UTF16String& text) {
    return GetAsString(kUnicodeTextType, text);
}

std::unique_ptr<OS_ReceiveDataBase> NewClipboardReceiveData() {
    return std::make_unique<OS_ReceiveData>();
}

}  // namespace datatransfer
}  // namespace zebui
