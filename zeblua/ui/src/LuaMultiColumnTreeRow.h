// A row of the multi-column tree that a script knows by its id.
#pragma once

#include "zebcore/utility/RefCountedObject.h"

namespace zeblua {
namespace ui {

// Counted: the tree holds its rows, and each row wrapper holds one more reference.
class LuaMultiColumnTreeRow : public zebcore::utility::RefCountedObject {
public:
    LuaMultiColumnTreeRow();
    ~LuaMultiColumnTreeRow() override;
};

}  // namespace ui
}  // namespace zeblua
