// The tree row wrapper: its methods, and how rows reach Lua.
#include "zeblua/ui/src/LuaMultiColumnTreeRowWrapper.h"

#include <new>
#include <string>

#include <lua.hpp>

#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/ControlWrapperPush.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {
namespace {

using RowWrapper = LuaMultiColumnTreeRowWrapper;
using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;

RowWrapper* checkWrapper(lua_State* L, int index) {
    return static_cast<RowWrapper*>(luaL_checkudata(L, index, RowWrapper::GetMetatableName()));
}

// The row of argument 1, taken again after every other argument was read: an argument's
// conversion can run script that ends this very wrapper with its __gc.
LuaMultiColumnTreeRow* liveRow(lua_State* L) {
    return checkWrapper(L, 1)->GetRow();
}

// Pushes an empty wrapper, the only step that can raise; nothing is held yet.
RowWrapper* newEmptyWrapper(lua_State* L) {
    luaL_checkstack(L, 2, "Cannot grow stack for a tree row");
    void* block = lua_newuserdata(L, sizeof(RowWrapper));
    RowWrapper* wrapper = new (block) RowWrapper();
    luaL_getmetatable(L, RowWrapper::GetMetatableName());
    lua_setmetatable(L, -2);
    return wrapper;
}

// The row as the script's class, or null for an empty row or a plain one.
boost::intrusive_ptr<LuaMultiColumnTreeRow> asLuaRow(const TreeRowP& row) {
    return boost::intrusive_ptr<LuaMultiColumnTreeRow>(
        dynamic_cast<LuaMultiColumnTreeRow*>(row.get()));
}

void fill(RowWrapper* wrapper, const TreeRowP& row) {
    wrapper->~RowWrapper();
    new (wrapper) RowWrapper(asLuaRow(row));
}

// A wrapper of the row that find(row of argument 1) answers; nothing for none. The block
// is made first, so the C++ work that follows holds the rows and raises nothing.
template <class Find> int pushFoundRow(lua_State* L, const char* name, Find find) {
    if (!liveRow(L)) return 0;
    RowWrapper* block = newEmptyWrapper(L);
    LuaMultiColumnTreeRow* row = liveRow(L);  // the allocation may have collected, and run script
    const bool found = row && utility::RunNative(L, name, [&] {
                           const boost::intrusive_ptr<LuaMultiColumnTreeRow> held(row);
                           const boost::intrusive_ptr<LuaMultiColumnTreeRow> answer =
                               asLuaRow(find(*held));
                           if (!answer) return false;
                           fill(block, answer);
                           return true;
                       });
    if (found) return 1;
    lua_pop(L, 1);
    return 0;
}

// A new wrapper from the factory of the node that find(row) answers; nothing for none.
template <class Find> int pushFoundNode(lua_State* L, const char* name, Find find) {
    PrepareWrapperPush(L);
    LuaMultiColumnTreeRow* row = liveRow(L);
    if (!row) return 0;
    const bool pushed = utility::RunNative(L, name, [&] {
        const boost::intrusive_ptr<LuaMultiColumnTreeRow> held(row);
        return FinishWrapperPush(L, find(*held));
    });
    if (!pushed) return lua_error(L);
    return lua_isnil(L, -1) ? 0 : 1;
}

template <class Answer> int pushPlain(lua_State* L, Answer answer) {
    if constexpr (std::is_same<Answer, bool>::value)
        lua_pushboolean(L, answer);
    else
        lua_pushnumber(L, static_cast<lua_Number>(answer));
    return 1;
}

// -- view = row:GetCellView(column): columns from 1; below 1 nothing.
int mctRowGetCellView(lua_State* L) {
    if (!liveRow(L)) return 0;
    const lua_Integer column = luaL_checkinteger(L, 2);
    if (column < 1) return 0;
    return pushFoundNode(L, "GetCellView", [&](LuaMultiColumnTreeRow& row) {
        return row.GetCellView(static_cast<unsigned int>(column - 1));
    });
}

// -- row:SetID(text)
int mctRowSetID(lua_State* L) {
    if (!liveRow(L)) return 0;
    size_t length = 0;
    const char* text = luaL_checklstring(L, 2, &length);
    LuaMultiColumnTreeRow* row = liveRow(L);
    if (!row) return 0;
    return utility::RunNative(L, "SetID", [&] {
        row->SetID(std::string(text, length));
        return 0;
    });
}

// -- id = row:GetID(): copied into Lua straight from the row, no C++ string made.
int mctRowGetID(lua_State* L) {
    LuaMultiColumnTreeRow* row = liveRow(L);
    if (!row) return 0;
    const zebcore::UTF8String& id = row->GetID();
    lua_pushlstring(L, id.data(), id.size());
    return 1;
}

// -- row:SetCanHaveChildren(value): only a value that lua_toboolean gives as 1 is true.
int mctRowSetCanHaveChildren(lua_State* L) {
    LuaMultiColumnTreeRow* row = liveRow(L);
    if (!row) return 0;
    row->SetCanHaveChildren(lua_toboolean(L, 2) == 1);
    return 0;
}

int mctRowCountChildRows(lua_State* L) {
    LuaMultiColumnTreeRow* row = liveRow(L);
    return row ? pushPlain(L, row->CountChildRows()) : 0;
}

// -- index = row:GetChildRowIndex(child): the toolkit's zero-based answer, -1 for none.
int mctRowGetChildRowIndex(lua_State* L) {
    if (!liveRow(L)) return 0;
    LuaMultiColumnTreeRow* child = CheckTreeRow(L, 2);
    LuaMultiColumnTreeRow* row = liveRow(L);
    if (!row) return 0;
    const int index = utility::RunNative(L, "GetChildRowIndex",
                                         [&] { return row->GetChildRowIndex(TreeRowP(child)); });
    return pushPlain(L, index);
}

// -- child = row:GetChildRow(index): rows from 0.
int mctRowGetChildRow(lua_State* L) {
    if (!liveRow(L)) return 0;
    const lua_Integer index = luaL_checkinteger(L, 2);
    if (index < 0) return 0;
    return pushFoundRow(L, "GetChildRow", [&](LuaMultiColumnTreeRow& row) {
        return row.GetChildRow(static_cast<unsigned int>(index));
    });
}

int mctRowGetParentRow(lua_State* L) {
    return pushFoundRow(L, "GetParentRow",
                        [](LuaMultiColumnTreeRow& row) { return row.GetParentRow(); });
}

int mctRowHasChild(lua_State* L) {
    LuaMultiColumnTreeRow* row = liveRow(L);
    return row ? pushPlain(L, row->HasChild()) : 0;
}

// -- row:SetCustomBackgroundColor(colour)
int mctRowSetCustomBackgroundColor(lua_State* L) {
    if (!liveRow(L)) return 0;
    zebui::inkwell::ColorRGBA colour;
    inkwell::GetColorRGBAFromLua(L, 2, colour);  // may run a field's __index
    LuaMultiColumnTreeRow* row = liveRow(L);
    if (!row) return 0;
    row->SetBackgroundColor(colour);
    return 0;
}

int mctRowHasCustomChild(lua_State* L) {
    LuaMultiColumnTreeRow* row = liveRow(L);
    return row ? pushPlain(L, row->HasCustomChild()) : 0;
}

int mctRowGetCustomChild(lua_State* L) {
    if (!liveRow(L)) return 0;
    return pushFoundNode(L, "GetCustomChild",
                         [](LuaMultiColumnTreeRow& row) { return row.GetCustomChild(); });
}

const luaL_Reg kRowMethods[] = {
    {"GetCellView", mctRowGetCellView},
    {"SetID", mctRowSetID},
    {"GetID", mctRowGetID},
    {"SetCanHaveChildren", mctRowSetCanHaveChildren},
    {"CountChildRows", mctRowCountChildRows},
    {"GetChildRowIndex", mctRowGetChildRowIndex},
    {"GetChildRow", mctRowGetChildRow},
    {"GetParentRow", mctRowGetParentRow},
    {"HasChild", mctRowHasChild},
    {"SetCustomBackgroundColor", mctRowSetCustomBackgroundColor},
    {"HasCustomChild", mctRowHasCustomChild},
    {"GetCustomChild", mctRowGetCustomChild},
    {nullptr, nullptr},
};

}  // namespace

LuaMultiColumnTreeRowWrapper::LuaMultiColumnTreeRowWrapper() = default;

LuaMultiColumnTreeRowWrapper::LuaMultiColumnTreeRowWrapper(
    const boost::intrusive_ptr<LuaMultiColumnTreeRow>& row)
    : mRow(row) {}

LuaMultiColumnTreeRowWrapper::~LuaMultiColumnTreeRowWrapper() = default;

const char* LuaMultiColumnTreeRowWrapper::GetMetatableName() {
    static const char* const sMetatableName = "Zeb.UI_MultiColumnTreeRow";
    return sMetatableName;
}

const luaL_Reg* LuaMultiColumnTreeRowWrapper::GetMethods() {
    return kRowMethods;
}

LuaMultiColumnTreeRow* CheckTreeRow(lua_State* L, int index) {
    return checkWrapper(L, index)->GetRow();
}

LuaMultiColumnTreeRow* OptionalTreeRow(lua_State* L, int index) {
    return lua_isuserdata(L, index) ? CheckTreeRow(L, index) : nullptr;
}

LuaMultiColumnTreeRowWrapper* NewEmptyTreeRow(lua_State* L) {
    return newEmptyWrapper(L);
}

bool FillTreeRow(LuaMultiColumnTreeRowWrapper* block, const TreeRowP& row) {
    if (!asLuaRow(row)) return false;
    fill(block, row);
    return true;
}

int PushTreeRow(lua_State* L, const TreeRowP& row) {
    if (!asLuaRow(row)) return 0;
    return PushTreeRowWrapper(L, row);
}

int PushTreeRowWrapper(lua_State* L, const TreeRowP& row) {
    fill(newEmptyWrapper(L), row);
    return 1;
}

int PushRowListToLua(lua_State* L, const TreeRowList& rows) {
    luaL_checkstack(L, 2, "Cannot grow stack for a list of tree rows");
    lua_newtable(L);
    int counter = 1;
    for (const TreeRowP& row : rows) {
        PushTreeRowWrapper(L, row);
        lua_rawseti(L, -2, counter++);
    }
    return 1;
}

}  // namespace ui
}  // namespace zeblua
