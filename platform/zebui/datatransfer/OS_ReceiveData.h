// Data a program receives: the clipboard's contents or what a drag carries.
#pragma once

#include <list>
#include <memory>
#include <vector>

#include "zebcore/filesupport/Dir.h"
#include "zebcore/filesupport/File.h"
#include "zebcore/utility/Strings.h"

namespace zebui {
namespace datatransfer {

class DataStore;

// Deleted through its virtual destructor by whoever owns it: the receiver of
// NewClipboardReceiveData, or the drag loop for the data of a drag.
class OS_ReceiveDataBase {
public:
    virtual ~OS_ReceiveDataBase() = default;

    virtual bool DataAvailable(const zebcore::UTF16String& type) = 0;
    // The bytes of the type; empty when it is missing.
    virtual void GetRawData(const zebcore::UTF16String& type,
                            std::vector<unsigned char>& bytes) = 0;
    // Leaves text alone and answers false when the type is missing.
    virtual bool GetAsString(const zebcore::UTF16String& type, zebcore::UTF16String& text) = 0;
    // The paths of the files type: existing folders as directories, the rest as files,
    // each list in the paths' order.
    virtual void GetAsFiles(std::list<zebcore::filesupport::File>& files,
                            std::list<zebcore::filesupport::Dir>& dirs) = 0;
    // The Unicode text flavour.
    virtual bool GetAsText(zebcore::UTF16String& text) = 0;
};

// Reads a store: a drag's own copy, or, with none, the clipboard as it is at each call.
class OS_ReceiveData : public OS_ReceiveDataBase {
public:
    explicit OS_ReceiveData(std::shared_ptr<const DataStore> store = nullptr);

    bool DataAvailable(const zebcore::UTF16String& type) override;
    void GetRawData(const zebcore::UTF16String& type, std::vector<unsigned char>& bytes) override;
    bool GetAsString(const zebcore::UTF16String& type, zebcore::UTF16String& text) override;
    void GetAsFiles(std::list<zebcore::filesupport::File>& files,
                    std::list<zebcore::filesupport::Dir>& dirs) override;
    bool GetAsText(zebcore::UTF16String& text) override;

private:
    const DataStore& store() const;

    std::shared_ptr<const DataStore> mStore;
};

// A new receive object over the clipboard; the caller owns it.
std::unique_ptr<OS_ReceiveDataBase> NewClipboardReceiveData();

}  // namespace datatransfer
}  // namespace zebui
