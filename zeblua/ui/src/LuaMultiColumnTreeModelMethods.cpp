// The tree's methods of rows, layout, columns, selection, open state and lookup.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeMethodSupport.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRowWrapper.h"
#include "zeblua/ui/src/LuaMultiColumnTreeWrapper.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/UI_ScrollView.h"

namespace zeblua {
namespace ui {
namespace {

using Tree = LuaMultiColumnTree;
using RowP = Tree::RowPtr;

// A number as the toolkit's unsigned 32-bit flags: its integer part modulo 2^32, 0 for
// what has none (NaN, infinities, beyond 2^63).
std::uint32_t unsignedFlags(lua_Number value) {
    if (!std::isfinite(value) || std::fabs(value) >= 9.2e18) return 0;
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(value));
}

// A row of the plain toolkit class is skipped with its children.
TreeRowP findById(const TreeRowP& row, const char* id, size_t length) {
    auto* own = dynamic_cast<LuaMultiColumnTreeRow*>(row.get());
    if (!own) return nullptr;
    const zebcore::UTF8String& mine = own->GetID();
    if (mine.size() == length && std::memcmp(mine.data(), id, length) == 0) return row;
    for (unsigned int i = 0; i < own->CountChildRows(); ++i)
        if (TreeRowP found = findById(own->GetChildRow(i), id, length)) return found;
    return nullptr;
}

// -- tree:Init([flags])
int mctInit(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const std::uint32_t flags = unsignedFlags(luaL_optnumber(L, 2, 0));
    return CallOnControl<Tree>(L, "Init", [&](Tree& tree) { tree.Init(flags); });
}

// -- row = tree:CreateAndAppendRow(parent, flag [, id]) and
// -- row = tree:CreateAndInsertRow(parent, reference, flag [, id]): a parent or reference
// that isn't a userdata is none; the id is read when the stack reaches its place.
int createRow(lua_State* L, bool insert) {
    if (!GetControlUserData(L, 1)) return 0;
    const int flagIndex = insert ? 4 : 3;
    OptionalTreeRow(L, 2);
    if (insert) OptionalTreeRow(L, 3);
    const bool flag = lua_toboolean(L, flagIndex) != 0;
    size_t length = 0;
    const char* id =
        lua_gettop(L) >= flagIndex + 1 ? luaL_checklstring(L, flagIndex + 1, &length) : "";
    LuaMultiColumnTreeRowWrapper* block = NewEmptyTreeRow(L);
    LuaMultiColumnTreeRow* parent = OptionalTreeRow(L, 2);  // taken again: script may have run
    LuaMultiColumnTreeRow* reference = insert ? OptionalTreeRow(L, 3) : nullptr;
    Tree* tree = CastControlNode<Tree>(L, 1);
    const bool made =
        tree && utility::RunNative(L, insert ? "CreateAndInsertRow" : "CreateAndAppendRow", [&] {
            const auto held = HoldNode(tree);
            const RowP row(new LuaMultiColumnTreeRow(std::string(id, length)));
            const int answer =
                insert ? tree->InsertRow(row, RowP(parent), RowP(reference), flag, false)
                       : tree->AppendRow(row, RowP(parent), flag);
            return answer >= 0 && FillTreeRow(block, row);
        });
    if (made) return 1;
    lua_pop(L, 1);
    return 0;
}

int mctCreateAndAppendRow(lua_State* L) {
    return createRow(L, false);
}

int mctCreateAndInsertRow(lua_State* L) {
    return createRow(L, true);
}

// -- tree:RemoveAllRows(flag)
int mctRemoveAllRows(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool flag = lua_toboolean(L, 2) != 0;
    return CallOnControl<Tree>(L, "RemoveAllRows", [&](Tree& tree) { tree.RemoveAllRows(flag); });
}

// -- tree:RemoveRow(row [, flag [, ignored]]): the flag is true when absent; a fourth
// argument is read and goes nowhere, the toolkit's second flag staying false.
int mctRemoveRow(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    LuaMultiColumnTreeRow* row = CheckTreeRow(L, 2);
    const bool flag = FlagDefaultTrue(L, 3);
    static_cast<void>(lua_toboolean(L, 4));
    return CallOnControl<Tree>(L, "RemoveRow",
                               [&](Tree& tree) { tree.RemoveRow(RowP(row), flag, false); });
}

// -- tree:ScrollRowIntoView(row [, flag])
int mctScrollRowIntoView(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    LuaMultiColumnTreeRow* row = CheckTreeRow(L, 2);
    const bool flag = lua_toboolean(L, 3) != 0;
    return CallOnControl<Tree>(L, "ScrollRowIntoView",
                               [&](Tree& tree) { tree.ScrollRowIntoView(RowP(row), flag, 0); });
}

int mctLayoutAfterAppendRow(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return CallOnControl<Tree>(L, "LayoutAfterAppendRow",
                               [](Tree& tree) { tree.LayoutAfterAppendRow(nullptr); });
}

int mctLayoutAfterInsertRow(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return CallOnControl<Tree>(L, "LayoutAfterInsertRow",
                               [](Tree& tree) { tree.LayoutAfterInsertRow(nullptr, false); });
}

int mctLayoutAfterRemoveRow(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return CallOnControl<Tree>(L, "LayoutAfterRemoveRow",
                               [](Tree& tree) { tree.LayoutAfterRemoveRow(); });
}

int mctSetSupportMultipleSelections(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool multiple = lua_toboolean(L, 2) != 0;
    return CallOnControl<Tree>(L, "SetSupportMultipleSelections",
                               [&](Tree& tree) { tree.SetSupportMultipleSelections(multiple); });
}

// -- tree:SelectRows(rows, a, b): each element is checked at stack position 5, so a
// non-empty table needs a and b on the stack, nil included. Every element is checked
// before the list is built; nothing between the check and the build can run script.
int mctSelectRows(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    luaL_checktype(L, 2, LUA_TTABLE);
    const int length = static_cast<int>(lua_objlen(L, 2));
    LuaMultiColumnTreeRow* first = nullptr;  // position 5 may first hold a further argument
    for (int i = 1; i <= length; ++i) {
        lua_rawgeti(L, 2, i);
        LuaMultiColumnTreeRow* row = CheckTreeRow(L, 5);
        if (i == 1) first = row;
        lua_settop(L, 4);
    }
    const bool a = lua_toboolean(L, 3) != 0;
    const bool b = lua_toboolean(L, 4) != 0;
    return CallOnControl<Tree>(L, "SelectRows", [&](Tree& tree) {
        TreeRowList rows;
        for (int i = 1; i <= length; ++i) {
            if (i == 1) {
                rows.push_back(TreeRowP(first));
                continue;
            }
            lua_rawgeti(L, 2, i);
            rows.push_back(TreeRowP(CheckTreeRow(L, 5)));  // checked above: cannot raise
            lua_settop(L, 4);
        }
        if (rows.empty())
            tree.DeselectAllRows(b);
        else
            tree.SelectRows(rows, a, b, true);
    });
}

int mctCountRows(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool all = lua_toboolean(L, 2) != 0;
    return AnswerOfControl<Tree>(L, "CountRows", [&](Tree& tree) { return tree.CountRows(all); });
}

// -- row = tree:GetRow(index): top-level rows from 0.
int mctGetRow(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer index = luaL_checkinteger(L, 2);
    if (index < 0) return 0;
    return PushFoundTreeRow(
        L, "GetRow", [&](Tree& tree) { return tree.GetRow(static_cast<unsigned int>(index)); });
}

// -- row = tree:GetRowById(id): depth first, parents before children, closed rows too;
// the first match wins.
int mctGetRowById(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    size_t length = 0;
    const char* id = luaL_checklstring(L, 2, &length);
    return PushFoundTreeRow(L, "GetRowById", [&](Tree& tree) {
        const unsigned int count = tree.CountRows(false);
        for (unsigned int i = 0; i < count; ++i)
            if (TreeRowP found = findById(tree.GetRow(i), id, length)) return found;
        return TreeRowP();
    });
}

// -- tree:SetNumberOfColumns(count): a negative count is ignored.
int mctSetNumberOfColumns(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer count = luaL_checkinteger(L, 2);
    if (count < 0) return 0;
    return CallOnControl<Tree>(L, "SetNumberOfColumns", [&](Tree& tree) {
        tree.SetNumberOfColumns(static_cast<unsigned int>(count));
    });
}

int mctSetRowHeight(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const float height = static_cast<float>(luaL_checknumber(L, 2));
    return CallOnControl<Tree>(L, "SetRowHeight", [&](Tree& tree) { tree.SetRowHeight(height); });
}

int mctGetRowHeight(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return AnswerOfControl<Tree>(L, "GetRowHeight", [](Tree& tree) { return tree.GetRowHeight(); });
}

// -- tree:SetResizableColumn(column): columns from 1; below 1 is ignored.
int mctSetResizableColumn(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer column = luaL_checkinteger(L, 2);
    if (column < 1) return 0;
    return CallOnControl<Tree>(L, "SetResizableColumn", [&](Tree& tree) {
        tree.SetAutoResizableColumns(
            std::vector<unsigned int>{static_cast<unsigned int>(column - 1)});
    });
}

// -- tree:SetResizableColumns(columns): each element is checked at stack position 3, so no
// further argument may stand there; values below 1 are skipped, and the list goes to the
// toolkit even when empty. Every element is checked before the list is built.
int mctSetResizableColumns(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    luaL_checktype(L, 2, LUA_TTABLE);
    const int length = static_cast<int>(lua_objlen(L, 2));
    for (int i = 1; i <= length; ++i) {
        lua_rawgeti(L, 2, i);
        luaL_checkinteger(L, 3);
        lua_pop(L, 1);
    }
    return CallOnControl<Tree>(L, "SetResizableColumns", [&](Tree& tree) {
        std::vector<unsigned int> columns;
        for (int i = 1; i <= length; ++i) {
            lua_rawgeti(L, 2, i);
            const lua_Integer column = lua_tointeger(L, 3);
            lua_pop(L, 1);
            if (column > 0) columns.push_back(static_cast<unsigned int>(column - 1));
        }
        tree.SetAutoResizableColumns(columns);
    });
}

// -- tree:SetColumnWidth(column, width): below 1 is ignored once both are checked.
int mctSetColumnWidth(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer column = luaL_checkinteger(L, 2);
    const float width = static_cast<float>(luaL_checknumber(L, 3));
    if (column < 1) return 0;
    return CallOnControl<Tree>(L, "SetColumnWidth", [&](Tree& tree) {
        tree.SetColumnWidth(static_cast<unsigned int>(column - 1), width);
    });
}

int mctGetColumnWidth(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer column = luaL_checkinteger(L, 2);
    if (column < 1) return 0;
    return AnswerOfControl<Tree>(L, "GetColumnWidth", [&](Tree& tree) {
        return tree.GetColumnWidth(static_cast<unsigned int>(column - 1));
    });
}

int mctIsRowOpen(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    LuaMultiColumnTreeRow* row = CheckTreeRow(L, 2);
    return AnswerOfControl<Tree>(L, "IsRowOpen",
                                 [&](Tree& tree) { return tree.IsRowOpen(RowP(row)); });
}

int mctIsRowVisible(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    LuaMultiColumnTreeRow* row = CheckTreeRow(L, 2);
    return AnswerOfControl<Tree>(L, "IsRowVisible",
                                 [&](Tree& tree) { return tree.IsRowVisible(RowP(row)); });
}

int mctGetSelectedRows(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return PushTreeRowList(L, "GetSelectedRows", [](Tree& tree) {
        TreeRowList rows;
        tree.GetSelectedRows(rows);
        return rows;
    });
}

int mctGetOpenedRows(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return PushTreeRowList(L, "GetOpenedRows", [](Tree& tree) { return tree.GetOpenedRows(); });
}

int mctGetVisibleRows(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return PushTreeRowList(L, "GetVisibleRows", [](Tree& tree) { return tree.GetVisibleRows(); });
}

int mctOpenRow(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    LuaMultiColumnTreeRow* row = CheckTreeRow(L, 2);
    return CallOnControl<Tree>(L, "OpenRow", [&](Tree& tree) { tree.OpenRow(RowP(row)); });
}

int mctCloseRow(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    LuaMultiColumnTreeRow* row = CheckTreeRow(L, 2);
    return CallOnControl<Tree>(L, "CloseRow", [&](Tree& tree) { tree.CloseRow(RowP(row)); });
}

int mctCloseAllTopLevelRows(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return CallOnControl<Tree>(L, "CloseAllTopLevelRows",
                               [](Tree& tree) { tree.CloseAllTopLevelRows(); });
}

int mctOpenAllTopLevelRows(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return CallOnControl<Tree>(L, "OpenAllTopLevelRows",
                               [](Tree& tree) { tree.OpenAllTopLevelRows(); });
}

int mctGetOpenedRowsFirstColumnMinWidth(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return AnswerOfControl<Tree>(L, "GetOpenedRowsFirstColumnMinWidth", [](Tree& tree) {
        return tree.GetOpenedRowsFirstColumnMinWidth();
    });
}

int mctSetAllowChildren(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool allow = lua_toboolean(L, 2) != 0;
    return CallOnControl<Tree>(L, "SetAllowChildren",
                               [&](Tree& tree) { tree.SetAllowChildren(allow); });
}

int mctGetScrollView(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    return PushFoundNode<Tree>(L, "GetScrollView",
                               [](Tree& tree) { return NodeP(tree.GetScrollView()); });
}

// -- tree:SetRowHasCustomChild(row, flag [, height]): nothing unless argument 2 is a
// userdata; the height is 0 unless the stack holds it.
int mctSetRowHasCustomChild(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    if (!lua_isuserdata(L, 2)) return 0;
    CheckTreeRow(L, 2);
    const bool flag = lua_toboolean(L, 3) != 0;
    const float height = lua_gettop(L) > 3 ? static_cast<float>(luaL_checknumber(L, 4)) : 0.0f;
    LuaMultiColumnTreeRow* row = CheckTreeRow(L, 2);
    return CallOnControl<Tree>(L, "SetRowHasCustomChild", [&](Tree& tree) {
        tree.SetRowHasCustomChild(RowP(row), flag, height);
    });
}

}  // namespace

const luaL_Reg LuaMultiColumnTreeWrapper::modelMethods[] = {
    {"Init", mctInit},
    {"CreateAndAppendRow", mctCreateAndAppendRow},
    {"CreateAndInsertRow", mctCreateAndInsertRow},
    {"RemoveAllRows", mctRemoveAllRows},
    {"RemoveRow", mctRemoveRow},
    {"ScrollRowIntoView", mctScrollRowIntoView},
    {"LayoutAfterAppendRow", mctLayoutAfterAppendRow},
    {"LayoutAfterInsertRow", mctLayoutAfterInsertRow},
    {"LayoutAfterRemoveRow", mctLayoutAfterRemoveRow},
    {"SetSupportMultipleSelections", mctSetSupportMultipleSelections},
    {"SelectRows", mctSelectRows},
    {"CountRows", mctCountRows},
    {"GetRow", mctGetRow},
    {"GetRowById", mctGetRowById},
    {"SetNumberOfColumns", mctSetNumberOfColumns},
    {"SetRowHeight", mctSetRowHeight},
    {"GetRowHeight", mctGetRowHeight},
    {"SetResizableColumn", mctSetResizableColumn},
    {"SetResizableColumns", mctSetResizableColumns},
    {"SetColumnWidth", mctSetColumnWidth},
    {"GetColumnWidth", mctGetColumnWidth},
    {"IsRowOpen", mctIsRowOpen},
    {"IsRowVisible", mctIsRowVisible},
    {"GetSelectedRows", mctGetSelectedRows},
    {"GetOpenedRows", mctGetOpenedRows},
    {"GetVisibleRows", mctGetVisibleRows},
    {"OpenRow", mctOpenRow},
    {"CloseRow", mctCloseRow},
    {"CloseAllTopLevelRows", mctCloseAllTopLevelRows},
    {"OpenAllTopLevelRows", mctOpenAllTopLevelRows},
    {"GetOpenedRowsFirstColumnMinWidth", mctGetOpenedRowsFirstColumnMinWidth},
    {"SetAllowChildren", mctSetAllowChildren},
    {"GetScrollView", mctGetScrollView},
    {"SetRowHasCustomChild", mctSetRowHasCustomChild},
    {nullptr, nullptr},
};

}  // namespace ui
}  // namespace zeblua
