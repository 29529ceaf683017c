// The protected calls behind every bound operation and change function.
#include "zeblua/ui/src/ZebOperationCalls.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/LuaBinder.h"
#include "zeblua/ui/src/LuaControlWrapperFactory.h"
#include "zeblua/ui/src/LuaFunctionEntry.h"
#include "zeblua/ui/src/LuaInputEvents.h"
#include "zeblua/utility/src/LuaCallForms.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/InkwellTypes.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {
namespace {

using utility::CallCleanup;

// Everything a protected call needs, handed over as one light userdata. The C++ objects
// it points to live in the caller's frame, outside the protected one, so a Lua error
// inside never skips their destructors.
struct BoundCall {
    int reference;
    BoundAnswer answer;
    int (*pushArguments)(lua_State* L, const BoundCall& call);
    const boost::intrusive_ptr<zebui::ui::UI_Node>* target;
    const zebui::ui::MouseEvent* mouseEvent;
    const zebui::ui::KeyboardEvent* keyboardEvent;
    const zebcore::geom::PointT<float>* point;
    const zebcore::geom::RectT<float>* rect;
    const zebcore::geom::RectT<int>* wholeRect;
    lua_Number number;
    lua_Number secondNumber;
    zebui::inkwell::Inkwell* inkwell;
    zebui::controls::UI_ControlChangedMessage* changed;
    zebui::controls::UI_InteractiveControlChangedMessage* interactive;
    bool result;
};

// Ends the call in its form; the function and nargs arguments are on top.
bool finish(lua_State* L, int nargs, BoundAnswer answer) {
    switch (answer) {
    case BoundAnswer::kTruthyPopTop:
        return utility::CallTruthy(L, nargs, CallCleanup::kPopTop);
    case BoundAnswer::kTruthyEmptyFrame:
        return utility::CallTruthy(L, nargs, CallCleanup::kEmptyFrame);
    case BoundAnswer::kNotify:
        utility::CallNotify(L, nargs);
        return false;
    case BoundAnswer::kChecked:
        if (!utility::CallChecked(L, nargs, 1, CallCleanup::kPopTop)) return false;
        lua_settop(L, -2); /* the value is dropped */
        return true;
    }
    return false;
}

int protectedCall(lua_State* L) {
    BoundCall* call = static_cast<BoundCall*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    lua_rawgeti(L, LUA_REGISTRYINDEX, call->reference);
    const int nargs = call->pushArguments(L, *call);
    call->result = finish(L, nargs, call->answer);
    return 0;
}

// The draw scope lives in this frame, which holds no other C++ object, as the guard's own
// pushes are the only ones that can raise before the call.
int protectedDraw(lua_State* L) {
    BoundCall* call = static_cast<BoundCall*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    lua_rawgeti(L, LUA_REGISTRYINDEX, call->reference);
    int nargs = 0;
    {
        inkwell::AcquireInkwellProxy scope(L, call->inkwell, nargs);
        call->result = finish(L, nargs, call->answer);
    }
    return 0;
}

// The proposal in number; a number answered replaces it, anything else leaves it.
int protectedValidation(lua_State* L) {
    BoundCall* call = static_cast<BoundCall*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    lua_rawgeti(L, LUA_REGISTRYINDEX, call->reference);
    lua_pushnumber(L, call->number);
    if (!utility::CallChecked(L, 1, 1, CallCleanup::kPopTop)) return 0;
    if (lua_type(L, -1) == LUA_TNUMBER) call->number = lua_tonumber(L, -1);
    lua_settop(L, -2); /* the answer */
    return 0;
}

bool run(const LuaFunctionEntry& entry, BoundCall& call, lua_CFunction body) {
    lua_State* L = entry.state;
    if (lua_cpcall(L, body, &call) != 0) {
        lua_pop(L, 1); /* the memory error */
        return call.answer == BoundAnswer::kTruthyPopTop ||
               call.answer == BoundAnswer::kTruthyEmptyFrame;
    }
    return call.result;
}

BoundCall newCall(const LuaFunctionEntry& entry, BoundAnswer answer,
                  int (*pushArguments)(lua_State*, const BoundCall&)) {
    return BoundCall{entry.reference, answer,  pushArguments, nullptr, nullptr, nullptr,
                     nullptr,         nullptr, nullptr,       0,       0,       nullptr,
                     nullptr,         nullptr, false};
}

int pushTarget(lua_State* L, const BoundCall& call) {
    return *call.target && LuaControlWrapperFactory(*call.target, L) ? 1 : 0;
}

int pushMouseArguments(lua_State* L, const BoundCall& call) {
    const int pushed = call.target ? pushTarget(L, call) : 0;
    return pushed + PushMouseEventToLua(L, *call.mouseEvent);
}

int pushKeyboardArguments(lua_State* L, const BoundCall& call) {
    const int pushed = pushTarget(L, call);
    return pushed + PushKeyboardEventToLua(L, *call.keyboardEvent);
}

int pushCursorArguments(lua_State* L, const BoundCall& call) {
    const int pushed = inkwell::PushPointF32ToLua(L, *call.point);
    lua_pushnumber(L, call.number);
    return pushed + 1;
}

int pushRect(lua_State* L, const BoundCall& call) {
    return inkwell::PushRectF32ToLua(L, *call.rect);
}

int pushNumber(lua_State* L, const BoundCall& call) {
    lua_pushnumber(L, call.number);
    return 1;
}

// The action and the tab, then the tab's rect when there is one.
int pushTabAction(lua_State* L, const BoundCall& call) {
    lua_pushnumber(L, call.number);
    lua_pushnumber(L, call.secondNumber);
    return 2 + (call.wholeRect ? inkwell::PushRect32ToLua(L, *call.wholeRect) : 0);
}

int pushControlMessage(lua_State* L, const BoundCall& call) {
    int count = 0;
    LuaBinder::PushControlMessage(L, call.changed, count);
    return count;
}

int pushInteractiveMessage(lua_State* L, const BoundCall& call) {
    int count = 0;
    LuaBinder::PushInteractiveControlMessage(L, call.interactive, *call.target, count);
    return count;
}

}  // namespace

bool CallBoundDraw(const LuaFunctionEntry& entry, zebui::inkwell::Inkwell* inkwell) {
    zebui::inkwell::SurfaceInterface* surface = inkwell ? inkwell->GetSurface() : nullptr;
    if (surface) {
        surface->PushStateStack();
        surface->SetAntiAliasPolicy(zebui::inkwell::kAntiAliasPolicy_Med);
    }
    BoundCall call = newCall(entry, BoundAnswer::kTruthyPopTop, nullptr);
    call.inkwell = inkwell;
    const bool answer = run(entry, call, protectedDraw);
    if (surface) surface->PopStateStack();
    return answer;
}

bool CallBoundMouseEvent(const LuaFunctionEntry& entry,
                         const boost::intrusive_ptr<zebui::ui::UI_Node>& target,
                         const zebui::ui::MouseEvent& event, BoundAnswer answer) {
    BoundCall call = newCall(entry, answer, pushMouseArguments);
    call.target = target ? &target : nullptr;
    call.mouseEvent = &event;
    return run(entry, call, protectedCall);
}

bool CallBoundKeyboardEvent(const LuaFunctionEntry& entry,
                            const boost::intrusive_ptr<zebui::ui::UI_Node>& target,
                            const zebui::ui::KeyboardEvent& event) {
    BoundCall call = newCall(entry, BoundAnswer::kTruthyEmptyFrame, pushKeyboardArguments);
    call.target = &target;
    call.keyboardEvent = &event;
    return run(entry, call, protectedCall);
}

bool CallBoundCursor(const LuaFunctionEntry& entry, const zebcore::geom::PointT<float>& where,
                     zebui::ui::ModifierFlags modifiers) {
    BoundCall call = newCall(entry, BoundAnswer::kTruthyEmptyFrame, pushCursorArguments);
    call.point = &where;
    call.number = modifiers.GetValue();
    return run(entry, call, protectedCall);
}

bool CallBoundRect(const LuaFunctionEntry& entry, const zebcore::geom::RectT<float>& rect,
                   BoundAnswer answer) {
    BoundCall call = newCall(entry, answer, pushRect);
    call.rect = &rect;
    return run(entry, call, protectedCall);
}

void CallBoundFocusChange(const LuaFunctionEntry& entry, zebui::ui::FocusChangeReason reason) {
    BoundCall call = newCall(entry, BoundAnswer::kNotify, pushNumber);
    call.number = reason;
    run(entry, call, protectedCall);
}

void CallBoundControlChanged(const LuaFunctionEntry& entry,
                             zebui::controls::UI_ControlChangedMessage* message) {
    BoundCall call = newCall(entry, BoundAnswer::kNotify, pushControlMessage);
    call.changed = message;
    run(entry, call, protectedCall);
}

void CallBoundInteractiveChange(const LuaFunctionEntry& entry,
                                zebui::controls::UI_InteractiveControlChangedMessage* message,
                                const boost::intrusive_ptr<zebui::ui::UI_Node>& control) {
    BoundCall call = newCall(entry, BoundAnswer::kNotify, pushInteractiveMessage);
    call.target = &control;
    call.interactive = message;
    run(entry, call, protectedCall);
}

float CallBoundSplitValidation(const LuaFunctionEntry& entry, float proposed) {
    BoundCall call = newCall(entry, BoundAnswer::kChecked, nullptr);
    call.number = proposed;
    run(entry, call, protectedValidation);
    return static_cast<float>(call.number);
}

void CallBoundNodeNotify(const LuaFunctionEntry& entry,
                         const boost::intrusive_ptr<zebui::ui::UI_Node>& node) {
    BoundCall call = newCall(entry, BoundAnswer::kNotify, pushTarget);
    call.target = &node;
    run(entry, call, protectedCall);
}

void CallBoundTabItemAction(const LuaFunctionEntry& entry, int action, int tab,
                            const zebcore::geom::RectT<int>* rect) {
    BoundCall call = newCall(entry, BoundAnswer::kNotify, pushTabAction);
    call.number = action;
    call.secondNumber = tab;
    call.wholeRect = rect;
    run(entry, call, protectedCall);
}

}  // namespace ui
}  // namespace zeblua
