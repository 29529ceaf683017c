// The multi-column tree wrapper.
#include "zeblua/ui/src/LuaMultiColumnTreeWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeDragMethods.h"
#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"

namespace zeblua {
namespace ui {
namespace {

// The names a script reads off any tree; "mctRowContextMenu" has no field.
const char* const kOperationNameFields[] = {
    kMCTDrawCell,           kMCTRowVisibilityChanged,     kMCTRowDisclosureChanged,
    kMCTSelectionChanged,   kMCTSelectedRowsBeingDragged, kMCTDropSupport,
    kMCTRowSingleClickDown, kMCTRowSingleClickUp,         kMCTRowDoubleClick,
};

}  // namespace

const char* LuaMultiColumnTreeWrapper::GetMetatableName() {
    static const char* const sMetatableName = "Zeb.MultiColumnTree";
    return sMetatableName;
}

void LuaMultiColumnTreeWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, modelMethods);
    luaL_register(L, nullptr, eventMethods);
    RegisterTreeDragMethods(L);
    luaL_checkstack(L, 1, "Cannot grow stack for the tree's names");
    for (const char* name : kOperationNameFields) {
        lua_pushstring(L, name);
        lua_setfield(L, -2, name);
    }
}

}  // namespace ui
}  // namespace zeblua
