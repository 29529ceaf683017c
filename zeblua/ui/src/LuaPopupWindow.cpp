// A popup window whose events go to Lua functions.
#include "zeblua/ui/src/LuaPopupWindow.h"

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "os/ApplicationServices.h"
#include "os/NSWindow.h"
#include "zebcore/utility/NonOptionalDynamicCast.h"
#include "zeblua/ui/src/LuaFunctionEntry.h"
#include "zeblua/ui/src/ZebOperationCalls.h"
#include "zeblua/uisupport/src/LuaCmdAttachment.h"
#include "zeblua/utility/src/LuaCallForms.h"

namespace zeblua {
namespace ui {

const char* const kUIKeyboardEvent = "uiKeyboardEvent";
const char* const kUI_ActivationChanged = "UI_ActivationChanged";
const char* const kOnCloseIfPopup = "OnCloseIfPopup";
const char* const kDuringClose = "duringClose";
const char* const kCmdHandler = "cmdHandler";
const char* const kCmdEnablement = "cmdEnablement";

namespace {

using utility::CallCleanup;

enum class PopupCall { kActivation, kClose, kCommand, kEnablement };

// What the protected frame needs; outs point into the chain's caller.
struct PopupCallData {
    int reference;
    PopupCall kind;
    int number;
    vex::uisupport::UnifiedDispatchBase::EnableOuts* outs;
    bool answer;
};

int protectedPopupCall(lua_State* L) {
    PopupCallData* call = static_cast<PopupCallData*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    lua_rawgeti(L, LUA_REGISTRYINDEX, call->reference);
    switch (call->kind) {
    case PopupCall::kActivation:
        lua_pushnumber(L, call->number);
        utility::CallNotify(L, 1);
        break;
    case PopupCall::kClose:
        call->answer = utility::CallStrict(L, 0);
        break;
    case PopupCall::kCommand:
        lua_pushinteger(L, call->number);
        call->answer = utility::CallStrict(L, 1);
        break;
    case PopupCall::kEnablement:
        lua_pushinteger(L, call->number);
        if (utility::CallChecked(L, 1, 1, CallCleanup::kEmptyFrame))
            call->answer = zeb::lua::uisupport::ReadCmdAnswer(L, -1, call->outs);
        break;
    }
    lua_settop(L, 0);
    return 0;
}

// The answer of the function bound under reference, false when the frame can't start.
bool callPopupFunction(lua_State* L, int reference, PopupCall kind, int number,
                       vex::uisupport::UnifiedDispatchBase::EnableOuts* outs = nullptr) {
    PopupCallData call{reference, kind, number, outs, false};
    if (lua_cpcall(L, protectedPopupCall, &call) == 0) return call.answer;
    lua_pop(L, 1);
    return false;
}

}  // namespace

LuaPopupWindow::LuaPopupWindow(lua_State* L, const zebui::inkwell::SupplierInterface* supplier,
                               bool floating)
    : OS_Window(supplier), LuaBindery(L), CommandHandler(nullptr), StateBound(L),
      mFloating(floating), mSupplier(supplier) {
    const long level =
        CGWindowLevelForKey(floating ? kCGFloatingWindowLevelKey : kCGPopUpMenuWindowLevelKey);
    UI_CreateWindow(zebcore::geom::RectT<float>(100, 100, 320, 240), 0, level, 0,
                    objc_getClass("ZEBMacPanelWindow"));
    NSWindow* platform = GetPlatformWindow(false);
    platform->setHasShadow(true);
    if (platform->respondsToWorksWhenModal()) platform->setWorksWhenModal(true);
}

LuaPopupWindow::~LuaPopupWindow() = default;

int LuaPopupWindow::boundReference(const char* name) const {
    if (!GetLuaState()) return LUA_NOREF;
    const auto found = mBoundFunctions.find(name);
    return found == mBoundFunctions.end() ? LUA_NOREF : found->second;
}

// An owner that is no OS_Window has no platform window to attach to; the toolkit's cast
// reports that with its conversion error, thrown to the caller.
void LuaPopupWindow::UI_Show(bool show) {
    NSWindow* platform = GetPlatformWindow(false);
    if (show && GetOwner()) {
        auto* owner =
            zebcore::utility::NonOptionalDynamicCast<zebui::ui::UI_Window*, zebui::ui::OS_Window*>(
                GetOwner(), zebcore::utility::kInvalidTypeConversion, 105, 21);
        NSWindow* ownerPlatform = owner->GetPlatformWindow(true);
        if (ownerPlatform && platform) ownerPlatform->addChildWindow(platform, 1);
    }
    if (!show && platform) {
        if (NSWindow* parent = platform->parentWindow()) parent->removeChildWindow(platform);
    }
    OS_Window::UI_Show(show);
}

bool LuaPopupWindow::UI_SupportsInkwell() const {
    return true;
}

const zebui::inkwell::SupplierInterface* LuaPopupWindow::UI_GetDrawSupplier() const {
    return mSupplier ? mSupplier : OS_Window::UI_GetDrawSupplier();
}

bool LuaPopupWindow::UI_DoKeyboardEvent(zebui::ui::UI_Node* target,
                                        const zebui::ui::KeyboardEvent& event) {
    const int reference = boundReference(kUIKeyboardEvent);
    if (reference != LUA_NOREF) {
        const boost::intrusive_ptr<zebui::ui::UI_Node> heldTarget(target);
        if (CallBoundKeyboardEvent(LuaFunctionEntry{GetLuaState(), reference}, heldTarget, event))
            return true;
    }
    return OS_Window::UI_DoKeyboardEvent(target, event);
}

bool LuaPopupWindow::UI_WantsKeyboardFocus() const {
    return true;
}

void LuaPopupWindow::UI_ActivationChanged(int activation) {
    const int reference = boundReference(kUI_ActivationChanged);
    if (reference != LUA_NOREF)
        callPopupFunction(GetLuaState(), reference, PopupCall::kActivation, activation);
}

bool LuaPopupWindow::UI_CloseIfPopup() {
    const int reference = boundReference(kOnCloseIfPopup);
    return reference != LUA_NOREF &&
           callPopupFunction(GetLuaState(), reference, PopupCall::kClose, 0);
}

void LuaPopupWindow::UI_DuringClose() {}

// A window nobody holds yet (count 0) is not held: holding it would end it.
bool LuaPopupWindow::HandleCommand(int commandId) {
    const boost::intrusive_ptr<zebui::ui::UI_Node> keep(GetReferenceCount() > 0 ? this : nullptr);
    return CommandHandler::HandleCommand(commandId);
}

bool LuaPopupWindow::CommandEnabled(int commandId, bool& enabled, bool& checked,
                                    zebcore::UTF16String& displayString) {
    const boost::intrusive_ptr<zebui::ui::UI_Node> keep(GetReferenceCount() > 0 ? this : nullptr);
    return CommandHandler::CommandEnabled(commandId, enabled, checked, displayString);
}

bool LuaPopupWindow::DoHandleCommand(int commandId) {
    const int reference = boundReference(kCmdHandler);
    return reference != LUA_NOREF &&
           callPopupFunction(GetLuaState(), reference, PopupCall::kCommand, commandId);
}

bool LuaPopupWindow::DoCommandEnabled(int commandId, bool& enabled, bool& checked,
                                      zebcore::UTF16String& displayString) {
    const int reference = boundReference(kCmdEnablement);
    if (reference == LUA_NOREF) return false;
    vex::uisupport::UnifiedDispatchBase::EnableOuts outs{&enabled, &checked, &displayString};
    return callPopupFunction(GetLuaState(), reference, PopupCall::kEnablement, commandId, &outs);
}

// The references die with the state: forget them, so the bindery releases nothing later.
void LuaPopupWindow::OnStateClosing() {
    mBoundFunctions.clear();
    if (GetCurrentCommandHandler() == this) SetCurrentCommandHandler(nullptr);
}

}  // namespace ui
}  // namespace zeblua
