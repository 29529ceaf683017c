// Operation binding: the node's hooks and the Lua functions behind them.
#include "zeblua/ui/src/ZebBinder.h"

#include <cstring>
#include <functional>
#include <utility>

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>
#include <lua.hpp>

#include "zeblua/ui/src/LuaBindingTable.h"
#include "zeblua/ui/src/ZebOperationCalls.h"
#include "zeblua/ui/src/ZebOperationNames.h"
#include "zeblua/utility/src/MainThread.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {
namespace {

namespace zui = zebui::ui;

// A hook that calls member on the binder while the binder lives, held for the call, and
// otherwise answers Result() (not taken, did not draw).
template <class Function, class Result, class Member>
boost::shared_ptr<Function> hookTo(const boost::shared_ptr<ZebBinder*>& alive, Member member) {
    return boost::make_shared<Function>([alive, member](auto&&... arguments) -> Result {
        ZebBinder* binder = *alive;
        if (!binder) return Result();
        const boost::intrusive_ptr<ZebBinder> keep(binder);
        return std::invoke(member, *binder, std::forward<decltype(arguments)>(arguments)...);
    });
}

}  // namespace

ZebBinder::ZebBinder(zui::UI_Node* node)
    : mNode(node), mAlive(boost::make_shared<ZebBinder*>(this)) {}

ZebBinder::~ZebBinder() {
    *mAlive = nullptr;
}

bool ZebBinder::BindZEBOperation(lua_State* L, const std::string& name, int reference) {
    lua_State* main = utility::GetMainThread(L);
    if (!main) return false;
    const auto bound = mBoundFunctions.find(name);
    if (bound != mBoundFunctions.end() && !bound->second.empty()) {
        const LuaFunctionEntry& old = bound->second.front();
        luaL_unref(old.state, LUA_REGISTRYINDEX, old.reference);
    }
    mBoundFunctions[name] = std::vector<LuaFunctionEntry>{LuaFunctionEntry{main, reference}};
    if (mInstalled.count(name)) return true;
    mInstalled[name] = true;
    installHook(name);
    return true;
}

void ZebBinder::installHook(const std::string& name) {
    if (name == kUiSizeChanged) {
        mNode->UI_InstallSizeChangedNotifyFunction(
            hookTo<zui::SizeChangedNotifyFunction, void>(mAlive, &ZebBinder::OnSizeChanged));
    } else if (name == kUiPreMouseEvent) {
        mNode->UI_SetCustomPreMouseEventFunction(
            hookTo<zui::CustomMouseEventFunction, bool>(mAlive, &ZebBinder::OnDoPreMouseEvent));
    } else if (name == kUiMouseEvent) {
        mNode->UI_SetCustomMouseEventFunction(
            hookTo<zui::CustomMouseEventFunction, bool>(mAlive, &ZebBinder::OnDoMouseEvent));
    } else if (name == kUiKeyboardEvent) {
        mNode->UI_SetCustomKeyboardEventFunction(
            hookTo<zui::CustomKeyboardEventFunction, bool>(mAlive, &ZebBinder::OnDoKeyboardEvent));
    } else if (name == kUiDraw) {
        mNode->UI_SetCustomDrawFunction(
            hookTo<zui::CustomDrawFunction, bool>(mAlive, &ZebBinder::OnDraw));
    } else if (name == kUiDoCursor) {
        mNode->UI_SetCustomDoCursorFunction(
            hookTo<zui::CustomDoCursorFunction, bool>(mAlive, &ZebBinder::OnDoCursor));
    } else if (name == kUiFocusChange) {
        mNode->InstallFocusChangedFunction(
            hookTo<zui::FocusChangedFunction, void>(mAlive, &ZebBinder::OnDoFocusChange));
    }
}

bool ZebBinder::findBound(const char* name, LuaFunctionEntry& entry) const {
    const auto bound = mBoundFunctions.find(name);
    if (bound == mBoundFunctions.end() || bound->second.empty()) return false;
    entry = bound->second.front();
    return true;
}

bool ZebBinder::OnDraw(const zui::UI_Node*, zebui::inkwell::Inkwell* inkwell) const {
    LuaFunctionEntry entry;
    return findBound(kUiDraw, entry) && CallBoundDraw(entry, inkwell);
}

bool ZebBinder::OnDoMouseEvent(zui::UI_Node*, const zui::MouseEvent& event, bool& handled) {
    LuaFunctionEntry entry;
    handled = findBound(kUiMouseEvent, entry) &&
              CallBoundMouseEvent(entry, nullptr, event, BoundAnswer::kTruthyEmptyFrame);
    return handled;
}

bool ZebBinder::OnDoPreMouseEvent(zui::UI_Node* target, const zui::MouseEvent& event,
                                  bool& handled) {
    LuaFunctionEntry entry;
    handled = findBound(kUiPreMouseEvent, entry) &&
              CallBoundMouseEvent(entry, zui::KeepNodeAlive(target), event,
                                  BoundAnswer::kTruthyEmptyFrame);
    return handled;
}

bool ZebBinder::OnDoKeyboardEvent(zui::UI_Node* target, const zui::KeyboardEvent& event,
                                  bool& handled) {
    LuaFunctionEntry entry;
    handled = findBound(kUiKeyboardEvent, entry) &&
              CallBoundKeyboardEvent(entry, zui::KeepNodeAlive(target), event);
    return handled;
}

bool ZebBinder::OnDoCursor(const zui::UI_Node*, const zebcore::geom::PointT<float>& where,
                           zui::ModifierFlags modifiers, bool& handled) {
    LuaFunctionEntry entry;
    handled = findBound(kUiDoCursor, entry) && CallBoundCursor(entry, where, modifiers);
    return handled;
}

void ZebBinder::OnSizeChanged() {
    const zebcore::geom::RectT<float> rect = mNode->UI_GetLocalRectF(false);
    LuaFunctionEntry entry;
    if (findBound(kUiSizeChanged, entry)) CallBoundRect(entry, rect, BoundAnswer::kNotify);
}

void ZebBinder::OnDoFocusChange(const zui::UI_Node*, zui::FocusChangeReason reason) {
    LuaFunctionEntry entry;
    if (findBound(kUiFocusChange, entry)) CallBoundFocusChange(entry, reason);
}

bool BindZEBOperation(lua_State* L, zui::UI_Node* node, const std::string& name, int reference) {
    const boost::intrusive_ptr<LuaBindingTable> table =
        LuaBindingTable::GetLuaBindingTable(node, true);
    if (!table) return false;
    boost::intrusive_ptr<LuaBinder>& slot = table->slots[LuaBindingTable::kZebBinderSlot];
    if (!slot) slot.reset(new ZebBinder(node));
    ZebBinder* binder = dynamic_cast<ZebBinder*>(slot.get());
    return binder && binder->BindZEBOperation(L, name, reference);
}

}  // namespace ui
}  // namespace zeblua
