// The tree's sorting by a script's comparison, and its drop action constants.
#include "zeblua/ui/src/LuaMultiColumnTreeDragMethods.h"

#include <string>
#include <vector>

#include <boost/bind/bind.hpp>
#include <boost/make_shared.hpp>
#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/datatransfer/LuaOSReceiveData.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/ControlNodeCast.h"
#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zeblua/ui/src/LuaInputEvents.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeMethodSupport.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRowWrapper.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/MultiColumnTreeSort.h"
#include "zebui/datatransfer/OS_ReceiveData.h"

namespace zeblua {
namespace ui {
namespace {

using Tree = LuaMultiColumnTree;
using zebui::controls::UI_MultiColumnTreeRow;
using DropSupportData = zebui::controls::UI_MultiColumnTreeDragSupport::DropSupportData;
using DropAction = zebui::controls::UI_MultiColumnTreeDragSupport::DropAction;
using datatransfer::OSReceiveDataProxy;

// The callbacks and comparisons below run their Lua function in a protected call of their
// own on the main thread the function was bound on, so a memory error in a push never
// leaves a C++ frame, and leave that thread's stack as they found it. Each question
// carries the function's reference first.
template <class Question>
bool askBound(Tree* tree, const char* name, lua_CFunction ask, Question& question) {
    lua_State* L = tree->GetZEBBoundLuaState(name);
    question.reference = tree->GetZEBBoundFunctionIndex(name);
    if (!L || question.reference < 1) return false;
    const auto held = HoldNode(tree);
    const int top = lua_gettop(L);
    const bool called = lua_cpcall(L, ask, &question) == 0;
    lua_settop(L, top);
    return called;
}

// The protected call's frame starts empty, with the function on it.
template <class Question> Question* beginQuestion(lua_State* L, int slots) {
    Question* question = static_cast<Question*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    luaL_checkstack(L, slots, "Cannot grow stack for a tree callback");
    lua_rawgeti(L, LUA_REGISTRYINDEX, question->reference);
    return question;
}

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
    Comparison* comparison = beginQuestion<Comparison>(L, 4);
    PushTreeRowWrapper(L, *comparison->first);
    PushTreeRowWrapper(L, *comparison->second);
    comparison->firstBeforeSecond =
        lua_pcall(L, 2, 1, 0) == 0 && lua_type(L, -1) == LUA_TBOOLEAN && lua_toboolean(L, -1) != 0;
    return 0;
}

// The toolkit's comparison: new row wrappers each time, a first and a second, on the main
// thread the function was bound on; the stack is left as found. The function is looked up
// at each comparison, so one that a comparison replaced is never called again.
bool myRowSortingFunction(UI_MultiColumnTreeRow* a, UI_MultiColumnTreeRow* b, Tree* tree) {
    const TreeRowP first(a);
    const TreeRowP second(b);
    Comparison comparison{0, &first, &second, false};
    return askBound(tree, kMCTRowSortingFunction, protectedCompare, comparison) &&
           comparison.firstBeforeSecond;
}

// -- tree:SetAllowRowDragging(value) and the three other switches: lua_toboolean of 2.
template <void (zebui::controls::UI_MultiColumnTreeDragSupport::*Set)(bool)>
int mctSetDragSwitch(lua_State* L) {
    const bool value = lua_toboolean(L, 2) != 0;
    return CallOnControl<Tree>(L, "SetDragSwitch", [&](Tree& tree) { (tree.*Set)(value); });
}

// -- tree:SetRowsDraggedDataType(type)
// The type ends at its first zero byte.
int mctSetRowsDraggedDataType(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const char* type = luaL_checklstring(L, 2, nullptr);
    return CallOnControl<Tree>(L, "SetRowsDraggedDataType", [&](Tree& tree) {
        tree.SetRowsDraggedDataType(zebcore::utility::UTF8to16(type));
    });
}

// The receive data of argument 2, or null after the report for an empty proxy.
zebui::datatransfer::OS_ReceiveDataBase* dragData(OSReceiveDataProxy* proxy) {
    if (!proxy->object) ZEB_ASSERT(0 && "out of scope OS_ReceiveData");
    return proxy->object;
}

// -- available = tree:HasRowDragDataFlavor(data)
int mctHasRowDragDataFlavor(lua_State* L) {
    bool available = false;
    if (GetControlUserData(L, 1)) {
        OSReceiveDataProxy* proxy = datatransfer::zeblua_checkOSReceiveData(L, 2);
        Tree* tree = CastControlNode<Tree>(L, 1);
        zebui::datatransfer::OS_ReceiveDataBase* data = tree ? dragData(proxy) : nullptr;
        available = data && utility::RunNative(L, "HasRowDragDataFlavor", [&] {
                        const auto held = HoldNode(tree);
                        return data->DataAvailable(tree->GetRowsDraggedDataType());
                    });
    }
    lua_pushboolean(L, available);
    return 1;
}

// -- rows = tree:GetRowsBeingDragged(data)
// The rows of this tree's own drag that are still in it, as a table from 1.
int mctGetRowsBeingDragged(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    OSReceiveDataProxy* proxy = datatransfer::zeblua_checkOSReceiveData(L, 2);
    if (!CastControlNode<Tree>(L, 1) || !dragData(proxy)) return 0;
    return PushTreeRowList(L, "GetRowsBeingDragged", [proxy](Tree& tree) {
        TreeRowList rows;
        if (!proxy->object) return rows; /* emptied by script that ran meanwhile */
        std::vector<unsigned char> bytes;
        proxy->object->GetRawData(tree.GetRowsDraggedDataType(), bytes);
        std::vector<UI_MultiColumnTreeRow*> found;
        tree.GetRowsBeingDragged(bytes, found);
        rows.assign(found.begin(), found.end());
        return rows;
    });
}

// "mctSelectedRowsBeingDragged": the mouse event; one result as a boolean, so a failure,
// whose message is a true value, answers true.
struct DragQuestion {
    int reference;
    const zebui::ui::MouseEvent* event;
    bool answer;
};

int protectedRowsBeingDragged(lua_State* L) {
    DragQuestion* question = beginQuestion<DragQuestion>(L, 4);
    PushMouseEventToLua(L, *question->event);
    lua_pcall(L, 1, 1, 0);
    question->answer = lua_toboolean(L, -1) != 0;
    return 0;
}

bool onSelectedRowsBeingDragged(Tree* tree, const zebui::ui::MouseEvent& event) {
    DragQuestion question{0, &event, false};
    askBound(tree, kMCTSelectedRowsBeingDragged, protectedRowsBeingDragged, question);
    return question.answer;
}

// "mctDropSupport": the action, then for a drag's data the point, a receive data proxy
// that lends the data and is emptied as soon as the call returns, the row or nil and the
// drop position; two results, the first the answer, the second a table whose isDropValid
// and dropEffect fields are the drop's. The proxy never owns the data, so a proxy that a
// failed push left behind frees nothing when it is collected.
struct DropQuestion {
    int reference;
    int action;
    DropSupportData* data;
    const TreeRowP* row;
    bool answer;
};

int protectedDropSupport(lua_State* L) {
    DropQuestion* question = beginQuestion<DropQuestion>(L, 8);
    lua_pushinteger(L, question->action);
    DropSupportData* data = question->data;
    OSReceiveDataProxy* proxy = nullptr;
    int nargs = 1;
    if (data) {
        nargs += inkwell::PushPointF32ToLua(L, data->point);
        nargs += datatransfer::PushReceiveDataToLua(L, data->data, &proxy);
        proxy->owned = false;
        if (*question->row)
            PushTreeRowWrapper(L, *question->row);
        else
            lua_pushnil(L);
        lua_pushinteger(L, data->dropPosition);
        nargs += 2;
    }
    const int status = lua_pcall(L, nargs, 2, 0);
    if (proxy) datatransfer::ReleaseReceiveData(proxy);
    if (status != 0) return 0;
    question->answer = lua_toboolean(L, -2) != 0;
    if (data && lua_istable(L, -1)) {
        lua_getfield(L, -1, "isDropValid");
        data->valid = lua_toboolean(L, -1) != 0;
        lua_pop(L, 1);
        if (data->dropEffect) {
            lua_getfield(L, -1, "dropEffect");
            *data->dropEffect = static_cast<int>(lua_tointeger(L, -1));
            lua_pop(L, 1);
        }
    }
    return 0;
}

bool onDropSupport(Tree* tree, DropAction action, DropSupportData* data) {
    const TreeRowP row(data ? data->row : nullptr);
    DropQuestion question{0, action, data, &row, false};
    askBound(tree, kMCTDropSupport, protectedDropSupport, question);
    return question.answer;
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
        if (tree->GetZEBBoundFunctionIndex(kMCTRowSortingFunction) < 1) return 0;
        using namespace boost::placeholders;
        zebui::controls::SortTreeRows(*tree, boost::bind(&myRowSortingFunction, _1, _2, tree));
        return 0;
    });
}

using zebui::controls::UI_MultiColumnTreeDragSupport;

const luaL_Reg kTreeDragMethods[] = {
    {"SetAllowRowDragging", mctSetDragSwitch<&UI_MultiColumnTreeDragSupport::SetAllowRowDragging>},
    {"SetAllowDropOverRows",
     mctSetDragSwitch<&UI_MultiColumnTreeDragSupport::SetAllowDropOverRows>},
    {"SetSupportDragOverRow",
     mctSetDragSwitch<&UI_MultiColumnTreeDragSupport::SetSupportDragOverRow>},
    {"ShowDragFeedback", mctSetDragSwitch<&UI_MultiColumnTreeDragSupport::ShowDragFeedback>},
    {"SetRowsDraggedDataType", mctSetRowsDraggedDataType},
    {"HasRowDragDataFlavor", mctHasRowDragDataFlavor},
    {"GetRowsBeingDragged", mctGetRowsBeingDragged},
    {"SetRowSortingFunction", mctSetRowSortingFunction},
    {"SortTree", mctSortTree},
    {nullptr, nullptr},
};

}  // namespace

void InstallTreeDragCallback(LuaMultiColumnTree& tree, const std::string& name) {
    using zebui::controls::UI_MultiColumnTreeDragSupport;
    using namespace boost::placeholders;
    if (name == kMCTSelectedRowsBeingDragged) {
        tree.SetSelectedRowsBeingDraggedCallback(
            boost::make_shared<
                UI_MultiColumnTreeDragSupport::SelectedRowsBeingDraggedCallback::element_type>(
                boost::bind(&onSelectedRowsBeingDragged, &tree, _1)));
    } else if (name == kMCTDropSupport) {
        tree.SetDropSupportCallback(
            boost::make_shared<UI_MultiColumnTreeDragSupport::DropSupportCallback::element_type>(
                boost::bind(&onDropSupport, &tree, _1, _2)));
    }
}

void RegisterTreeDragMethods(lua_State* L) {
    luaL_register(L, nullptr, kTreeDragMethods);
    using zebui::controls::UI_MultiColumnTreeDragSupport;
    utility::SetIntegerConstant(L, "kDropAction_DragEnter",
                                UI_MultiColumnTreeDragSupport::kDropAction_DragEnter);
    utility::SetIntegerConstant(L, "kDropAction_DragOver",
                                UI_MultiColumnTreeDragSupport::kDropAction_DragOver);
    utility::SetIntegerConstant(L, "kDropAction_DragLeave",
                                UI_MultiColumnTreeDragSupport::kDropAction_DragLeave);
    utility::SetIntegerConstant(L, "kDropAction_Drop",
                                UI_MultiColumnTreeDragSupport::kDropAction_Drop);
}

}  // namespace ui
}  // namespace zeblua
