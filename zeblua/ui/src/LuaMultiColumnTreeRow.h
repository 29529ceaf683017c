// A row of the multi-column tree that a script knows by its id.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_MultiColumnTreeRow.h"

namespace zeblua {
namespace ui {

// Counted: the tree holds its rows, and each row wrapper holds one more reference. The id
// is the script's name for the row: UTF-8, empty by default, not required to be unique,
// and indexed by nothing, so it may change at any time.
class LuaMultiColumnTreeRow : public zebui::controls::UI_MultiColumnTreeRow {
public:
    LuaMultiColumnTreeRow();
    explicit LuaMultiColumnTreeRow(const zebcore::UTF8String& id);
    ~LuaMultiColumnTreeRow() override;

    const zebcore::UTF8String& GetID() const { return mID; }
    void SetID(const zebcore::UTF8String& id) { mID = id; }

private:
    zebcore::UTF8String mID;
};

}  // namespace ui
}  // namespace zeblua
