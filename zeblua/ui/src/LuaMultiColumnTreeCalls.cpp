// The protected calls behind the tree's bound operations.
#include "zeblua/ui/src/LuaMultiColumnTreeCalls.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/LuaControlWrapperFactory.h"
#include "zeblua/ui/src/LuaFunctionEntry.h"
#include "zeblua/utility/src/LuaCallForms.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/InkwellTypes.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {
namespace {

using utility::CallCleanup;

// What a protected call needs, handed over as one light userdata; the objects it points
// to live in the caller's frame, outside the protected one.
struct TreeCall {
    int reference;
    const TreeRowP* row;
    const TreeRowList* rows;
    const zebcore::geom::PointT<float>* point;
    const zebcore::geom::RectT<float>* rect;
    const boost::intrusive_ptr<zebui::ui::UI_Node>* node;
    zebui::inkwell::Inkwell* inkwell;
    lua_Number number;
    unsigned int column;
    bool hasFlag;  // the disclosure's open state follows the row
    bool flag;
    bool result;
};

TreeCall newCall(const LuaFunctionEntry& entry) {
    return TreeCall{entry.reference, nullptr, nullptr, nullptr, nullptr, nullptr,
                    nullptr,         0,       0,       false,   false,   false};
}

// The call's frame starts empty, with the function on it.
TreeCall* begin(lua_State* L) {
    TreeCall* call = static_cast<TreeCall*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    luaL_checkstack(L, 8, "Cannot grow stack for a tree callback");
    lua_rawgeti(L, LUA_REGISTRYINDEX, call->reference);
    return call;
}

int pushColumn(lua_State* L, unsigned int column) {
    lua_pushnumber(L, static_cast<lua_Number>(column) + 1);
    return 1;
}

// The scope lives in this frame, which holds no other C++ object.
int protectedDrawCell(lua_State* L) {
    TreeCall* call = begin(L);
    int nargs = 0;
    {
        inkwell::AcquireInkwellProxy scope(L, call->inkwell, nargs);
        nargs += PushTreeRowWrapper(L, *call->row);
        nargs += pushColumn(L, call->column);
        nargs += inkwell::PushRectF32ToLua(L, *call->rect);
        utility::CallTruthy(L, nargs, CallCleanup::kPopTop); /* the answer is dropped */
    }
    return 0;
}

int protectedRowNotify(lua_State* L) {
    TreeCall* call = begin(L);
    int nargs = PushTreeRowWrapper(L, *call->row);
    if (call->point) {
        nargs += inkwell::PushPointF32ToLua(L, *call->point);
        lua_pushnumber(L, call->number);
        nargs += 1 + pushColumn(L, call->column);
    } else if (call->hasFlag) {
        lua_pushboolean(L, call->flag);
        ++nargs;
    }
    utility::CallNotify(L, nargs);
    return 0;
}

int protectedSelection(lua_State* L) {
    TreeCall* call = begin(L);
    const int nargs = PushRowListToLua(L, *call->rows);
    utility::CallNotify(L, nargs);
    return 0;
}

int protectedContextMenu(lua_State* L) {
    TreeCall* call = begin(L);
    int nargs = PushTreeRowWrapper(L, *call->row);
    nargs += inkwell::PushPointF32ToLua(L, *call->point);
    if (!*call->node || !LuaControlWrapperFactory(*call->node, L)) lua_pushnil(L);
    nargs += 1 + pushColumn(L, call->column);
    call->result = utility::CallTruthy(L, nargs, CallCleanup::kPopTop);
    return 0;
}

// A frame that can't even start (out of memory) counts as a failed function.
bool run(const LuaFunctionEntry& entry, TreeCall& call, lua_CFunction body, bool failure) {
    if (lua_cpcall(entry.state, body, &call) != 0) {
        lua_pop(entry.state, 1); /* the memory error */
        return failure;
    }
    return call.result;
}

}  // namespace

void CallTreeDrawCell(const LuaFunctionEntry& entry, zebui::inkwell::Inkwell* inkwell,
                      const TreeRowP& row, unsigned int column,
                      const zebcore::geom::RectT<float>& rect) {
    zebui::inkwell::SurfaceInterface* surface = inkwell ? inkwell->GetSurface() : nullptr;
    if (surface) {
        surface->PushStateStack();
        surface->SetAntiAliasPolicy(zebui::inkwell::kAntiAliasPolicy_Med);
    }
    TreeCall call = newCall(entry);
    call.inkwell = inkwell;
    call.row = &row;
    call.column = column;
    call.rect = &rect;
    run(entry, call, protectedDrawCell, false);
    if (surface) surface->PopStateStack();
}

void CallTreeRowVisibility(const LuaFunctionEntry& entry, const TreeRowP& row) {
    TreeCall call = newCall(entry);
    call.row = &row;
    run(entry, call, protectedRowNotify, false);
}

void CallTreeRowDisclosure(const LuaFunctionEntry& entry, const TreeRowP& row, bool open) {
    TreeCall call = newCall(entry);
    call.row = &row;
    call.hasFlag = true;
    call.flag = open;
    run(entry, call, protectedRowNotify, false);
}

void CallTreeRowClick(const LuaFunctionEntry& entry, const TreeRowP& row,
                      const zebcore::geom::PointT<float>& point, unsigned char flags,
                      unsigned int column) {
    TreeCall call = newCall(entry);
    call.row = &row;
    call.point = &point;
    call.number = flags;
    call.column = column;
    run(entry, call, protectedRowNotify, false);
}

void CallTreeSelection(const LuaFunctionEntry& entry, const TreeRowList& rows) {
    TreeCall call = newCall(entry);
    call.rows = &rows;
    run(entry, call, protectedSelection, false);
}

bool CallTreeContextMenu(const LuaFunctionEntry& entry, const TreeRowP& row,
                         const zebcore::geom::PointT<float>& point,
                         const boost::intrusive_ptr<zebui::ui::UI_Node>& node,
                         unsigned int column) {
    TreeCall call = newCall(entry);
    call.row = &row;
    call.point = &point;
    call.node = &node;
    call.column = column;
    return run(entry, call, protectedContextMenu, true);
}

}  // namespace ui
}  // namespace zeblua
