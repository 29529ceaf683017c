// The tree's sorting by a script's comparison, and its drop action constants.
#include "zeblua/ui/src/LuaMultiColumnTreeDragMethods.h"

#include <boost/bind/bind.hpp>
#include <lua.hpp>

#include "zeblua/ui/src/ControlNodeCast.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRowWrapper.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/MultiColumnTreeSort.h"

namespace zeblua {
namespace ui {
namespace {

using Tree = LuaMultiColumnTree;
using zebui::controls::UI_MultiColumnTreeRow;

// One comparison, handed to the protected call: the rows are held by the caller's frame,
// which a memory error inside the call never leaves.
struct Comparison {
    int reference;
    const TreeRowP* first;
    const TreeRowP* second;
    bool firstBeforeSecond;
};

// Only a boolean true counts: a failure, another type and false all answer false.
int protectedCompare(lua_State* L) {
    Comparison* comparison = static_cast<Comparison*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    luaL_checkstack(L, 4, "Cannot grow stack for a sorting function");
    lua_rawgeti(L, LUA_REGISTRYINDEX, comparison->reference);
    PushTreeRowWrapper(L, *comparison->first);
    PushTreeRowWrapper(L, *comparison->second);
    comparison->firstBeforeSecond =
        lua_pcall(L, 2, 1, 0) == 0 && lua_type(L, -1) == LUA_TBOOLEAN && lua_toboolean(L, -1) != 0;
    return 0;
}

// The toolkit's comparison: new row wrappers each time, a first and a second, on the main
// thread the function was bound on; the stack is left as found.
bool myRowSortingFunction(UI_MultiColumnTreeRow* a, UI_MultiColumnTreeRow* b, lua_State* L,
                          int reference) {
    const TreeRowP first(a);
    const TreeRowP second(b);
    Comparison comparison{reference, &first, &second, false};
    const int top = lua_gettop(L);
    const bool called = lua_cpcall(L, protectedCompare, &comparison) == 0;
    lua_settop(L, top);
    return called && comparison.firstBeforeSecond;
}

// -- tree:SetRowSortingFunction(f)
// The function is kept among the tree's bound functions; a new one replaces it.
int mctSetRowSortingFunction(lua_State* L) {
    if (!CastControlNode<Tree>(L, 1)) return 0;
    luaL_checktype(L, 2, LUA_TFUNCTION);
    lua_pushvalue(L, 2);
    const int reference = luaL_ref(L, LUA_REGISTRYINDEX);
    Tree* tree = CastControlNode<Tree>(L, 1);  // nothing ran since the first look
    const bool bound = utility::RunNative(L, "SetRowSortingFunction", [&] {
        return tree->BindZEBOperation(L, kMCTRowSortingFunction, reference);
    });
    if (!bound) luaL_unref(L, LUA_REGISTRYINDEX, reference);
    return 0;
}

// -- tree:SortTree()
// Without a sorting function the rows stay as they are. The comparisons run script, so the
// tree is held for the sort.
int mctSortTree(lua_State* L) {
    Tree* tree = CastControlNode<Tree>(L, 1);
    if (!tree) return 0;
    return utility::RunNative(L, "SortTree", [&] {
        const auto keep = zebui::ui::KeepNodeAlive(tree);
        lua_State* state = tree->GetZEBBoundLuaState(kMCTRowSortingFunction);
        const int reference = tree->GetZEBBoundFunctionIndex(kMCTRowSortingFunction);
        if (!state || reference < 1) return 0;
        using namespace boost::placeholders;
        zebui::controls::SortTreeRows(*tree,
                                      boost::bind(&myRowSortingFunction, _1, _2, state, reference));
        return 0;
    });
}

const luaL_Reg kTreeDragMethods[] = {
    {"SetRowSortingFunction", mctSetRowSortingFunction},
    {"SortTree", mctSortTree},
    {nullptr, nullptr},
};

}  // namespace

void RegisterTreeDragMethods(lua_State* L) {
    luaL_register(L, nullptr, kTreeDragMethods);
    utility::SetIntegerConstant(L, "kDropAction_DragEnter", 0);
    utility::SetIntegerConstant(L, "kDropAction_DragOver", 1);
    utility::SetIntegerConstant(L, "kDropAction_DragLeave", 2);
    utility::SetIntegerConstant(L, "kDropAction_Drop", 3);
}

}  // namespace ui
}  // namespace zeblua
