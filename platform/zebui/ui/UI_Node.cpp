// Nodes of the view tree.
#include "zebui/ui/UI_Node.h"

#include <algorithm>
#include <utility>

#include <boost/any.hpp>
#include <boost/function.hpp>

#include "zebcore/debug/Debug.h"
#include "zebcore/geom/MatrixT.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/PathInterface.h"
#include "zebui/inkwell/SupplierInterface.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zebui {
namespace ui {

namespace geom = zebcore::geom;

namespace {

// Calls a hook through a copy of its pointer, so that a hook that replaces itself
// keeps running to its end.
template <class FunctionP, class... Args>
bool callEventHook(const FunctionP& hook, Args&&... args) {
    const FunctionP running = hook;
    if (!running || running->empty()) return false;
    bool handled = false;
    const bool answer = (*running)(std::forward<Args>(args)..., handled);
    return answer || handled;
}

template <class FunctionP> void addOnce(std::vector<FunctionP>& list, const FunctionP& function) {
    if (function && std::find(list.begin(), list.end(), function) == list.end())
        list.push_back(function);
}

}  // namespace

UI_Node::UI_Node() : UI_Container(*this) {}

UI_Node::~UI_Node() {
    EventLoop::Get()->RemoveTimers(this);
    UI_NodeManager::Get(false)->NodeDestroyed(this);
    // The user data may own binders whose functions the hooks point to: both go now,
    // before the children, which never call up into a dying parent.
    mUserData.reset();
    mDrawFunction.reset();
    mMouseEventFunction.reset();
    mPreMouseEventFunction.reset();
    mKeyboardEventFunction.reset();
    mDoCursorFunction.reset();
    mSizeChangedFunctions.clear();
    mFocusChangedFunctions.clear();
    mTimerNotifyFunctions.clear();
    DeleteChildren();
}

geom::RectT<float> UI_Node::UI_GetLocalRectF(bool) const {
    return mLocalRect;
}

void UI_Node::UI_SetLocalRectF(const geom::RectT<float>& rect) {
    const bool resized = rect.width != mLocalRect.width || rect.height != mLocalRect.height;
    mLocalRect = rect;
    if (resized) {
        const auto keep = KeepNodeAlive(this);
        UI_SizeChanged(rect);
    }
}

void UI_Node::UI_Show(bool show) {
    mShown = show;
}

bool UI_Node::UI_IsShown() const {
    return mShown;
}

void UI_Node::UI_Invalidate(const geom::RectT<int>* rect, RedrawFlags flags) {
    ++mRedraw.invalidateCount;
    mRedraw.invalidateFlags = flags;
    if (mRedraw.wholeNode) return;
    if (!rect || mRedraw.rects.size() >= kMaxRecordedInvalidRects) {
        mRedraw.wholeNode = true;
        mRedraw.rects.clear();
    } else {
        mRedraw.rects.push_back(*rect);
    }
}

void UI_Node::UI_UpdateNow(RedrawFlags flags) {
    ++mRedraw.updateNowCount;
    mRedraw.updateNowFlags = flags;
    if (!mShown) return;
    const auto keep = KeepNodeAlive(this);
    inkwell::SupplierInterface* supplier = UI_NodeManager::Get(false)->GetDefaultSupplier();
    const boost::intrusive_ptr<inkwell::SurfaceInterface> surface(supplier->MakeOffscreenSurface(
        std::max(1, int(mLocalRect.width)), std::max(1, int(mLocalRect.height)), false));
    if (!surface) return;
    inkwell::Inkwell window(supplier, surface.get());
    DeliverDraw(&window);
}

void UI_Node::UI_Draw(inkwell::Inkwell* inkwell) const {
    const CustomDrawFunctionP hook = mDrawFunction;  // may replace itself while it runs
    if (hook && !hook->empty() && (*hook)(this, inkwell)) return;
    UI_DrawFace(inkwell);
    // A copy, since a child's draw hook may change the list.
    const ChildList children(ChildBegin(), ChildEnd());
    for (const auto& child : children)
        if (child->UI_IsShown()) UI_DispatchDrawToChild(child.get(), inkwell);
}

void UI_Node::UI_DrawFace(inkwell::Inkwell* /*inkwell*/) const {}

const inkwell::SupplierInterface* UI_Node::UI_GetDrawSupplier() const {
    return mParent ? mParent->UI_GetDrawSupplier()
                   : UI_NodeManager::Get(false)->GetDefaultSupplier();
}

bool UI_Node::UI_DoPreMouseEvent(UI_Node* target, const MouseEvent& event) {
    return callEventHook(mPreMouseEventFunction, target, event);
}

bool UI_Node::UI_DoMouseEvent(UI_Node* target, const MouseEvent& event) {
    return callEventHook(mMouseEventFunction, target, event);
}

bool UI_Node::UI_IsMouseOver(bool includeDescendants) const {
    const UI_Node* over = UI_NodeManager::Get(false)->GetMouseOverNode();
    return over && (over == this || (includeDescendants && IsAncestorOf(over)));
}

bool UI_Node::UI_DoKeyboardEvent(UI_Node* target, const KeyboardEvent& event) {
    return callEventHook(mKeyboardEventFunction, target, event);
}

bool UI_Node::UI_GainKeyboardFocus(FocusChangeReason reason) {
    return UI_NodeManager::Get(false)->SetKeyboardFocus(this, reason);
}

bool UI_Node::UI_HasKeyboardFocus(bool includeDescendants) const {
    const UI_Node* focus = UI_NodeManager::Get(false)->GetKeyboardFocus();
    return focus && (focus == this || (includeDescendants && IsAncestorOf(focus)));
}

bool UI_Node::UI_DoTimerNotify(int id) {
    const auto keep = KeepNodeAlive(this);
    const std::vector<TimerNotifyFunctionP> listeners = mTimerNotifyFunctions;
    for (const auto& listener : listeners)
        if (!listener->empty() && (*listener)(id)) return true;
    return false;
}

void UI_Node::UI_SetToolTip(const zebcore::UTF16String& text, int width) {
    mToolTip = text;
    mToolTipWidth = width;
}

geom::PointT<float> UI_Node::UI_GetRecommendedSize(inkwell::Inkwell*) const {
    return mLocalRect.GetSize();
}

void UI_Node::SetUserData(const boost::any& data) {
    // The old value dies after the new one is in place, so whatever its destruction
    // does finds the node in its new state.
    std::unique_ptr<boost::any> old(std::move(mUserData));
    mUserData.reset(new boost::any(data));
}

const boost::any& UI_Node::GetUserData() const {
    static const boost::any sEmpty;
    return mUserData ? *mUserData : sEmpty;
}

void UI_Node::UI_SizeChanged(const geom::RectT<float>&) {
    const auto keep = KeepNodeAlive(this);
    const std::vector<SizeChangedNotifyFunctionP> listeners = mSizeChangedFunctions;
    for (const auto& listener : listeners)
        if (!listener->empty()) (*listener)();
}

UI_Node* UI_Node::UI_GetRootNode() const {
    const UI_Node* node = this;
    while (node->mParent)
        node = node->mParent;
    return const_cast<UI_Node*>(node);
}

int UI_Node::UI_GetIndex() const {
    if (!mParent) return -1;
    int index = 0;
    for (auto it = mParent->ChildBegin(); it != mParent->ChildEnd(); ++it, ++index)
        if (it->get() == this) return index;
    return -1;
}

bool UI_Node::IsAncestorOf(const UI_Node* node) const {
    for (const UI_Node* up = node ? node->mParent : nullptr; up; up = up->mParent)
        if (up == this) return true;
    return false;
}

geom::PointT<float> UI_Node::UI_LocalToGlobalF(const geom::PointT<float>& point) const {
    geom::PointT<float> global = point;
    for (const UI_Node* node = this; node; node = node->mParent)
        global += node->mLocalRect.GetOrigin();
    return global;
}

geom::RectT<float> UI_Node::UI_LocalToGlobalF(const geom::RectT<float>& rect) const {
    return geom::RectT<float>(UI_LocalToGlobalF(rect.GetOrigin()), rect.GetSize());
}

geom::PointT<float> UI_Node::UI_GlobalToLocalF(const geom::PointT<float>& point) const {
    geom::PointT<float> local = point;
    for (const UI_Node* node = this; node; node = node->mParent)
        local -= node->mLocalRect.GetOrigin();
    return local;
}

geom::RectT<float> UI_Node::UI_GlobalToLocalF(const geom::RectT<float>& rect) const {
    return geom::RectT<float>(UI_GlobalToLocalF(rect.GetOrigin()), rect.GetSize());
}

void UI_Node::UI_DispatchDrawToChild(const UI_Node* child, inkwell::Inkwell* inkwell) const {
    ZEB_ASSERT_MSG(!child || child->mParent == this, "UI_DispatchDrawToChild with a foreign node");
    if (!child) return;
    inkwell::SurfaceInterface* surface = inkwell ? inkwell->GetSurface() : nullptr;
    if (surface) {
        surface->PushStateStack();
        surface->Transform(
            geom::MatrixT<float>::Translation(child->mLocalRect.left, child->mLocalRect.top));
    }
    child->DeliverDraw(inkwell);
    if (surface) surface->PopStateStack();
}

void UI_Node::UI_InstallTimer(float interval, int id) {
    ZEB_ASSERT_MSG(id != 0, "timer id 0 stands for no timer");
    if (id != 0) EventLoop::Get()->InstallTimer(this, id, EventLoop::IntervalToMs(interval));
}

void UI_Node::UI_RemoveTimer(int id, bool) {
    EventLoop::Get()->RemoveTimer(this, id);
}

void UI_Node::UI_InstallTimerNotifyFunction(const TimerNotifyFunctionP& function) {
    addOnce(mTimerNotifyFunctions, function);
}

void UI_Node::UI_RemoveTimerNotifyFunction(const TimerNotifyFunctionP& function) {
    mTimerNotifyFunctions.erase(
        std::remove(mTimerNotifyFunctions.begin(), mTimerNotifyFunctions.end(), function),
        mTimerNotifyFunctions.end());
}

void UI_Node::UI_SetCustomDrawFunction(const CustomDrawFunctionP& function) {
    mDrawFunction = function;
}

void UI_Node::UI_SetCustomMouseEventFunction(const CustomMouseEventFunctionP& function) {
    mMouseEventFunction = function;
}

void UI_Node::UI_SetCustomPreMouseEventFunction(const CustomMouseEventFunctionP& function) {
    mPreMouseEventFunction = function;
}

void UI_Node::UI_SetCustomKeyboardEventFunction(const CustomKeyboardEventFunctionP& function) {
    mKeyboardEventFunction = function;
}

void UI_Node::UI_SetCustomDoCursorFunction(const CustomDoCursorFunctionP& function) {
    mDoCursorFunction = function;
}

void UI_Node::UI_InstallSizeChangedNotifyFunction(SizeChangedNotifyFunctionP function) {
    addOnce(mSizeChangedFunctions, function);
}

void UI_Node::InstallFocusChangedFunction(FocusChangedFunctionP function) {
    addOnce(mFocusChangedFunctions, function);
}

bool UI_Node::DeliverMouseEvent(UI_Node* target, const MouseEvent& event) {
    const auto keep = KeepNodeAlive(this);
    return UI_DoPreMouseEvent(target, event) || UI_DoMouseEvent(target, event);
}

bool UI_Node::DeliverKeyboardEvent(UI_Node* target, const KeyboardEvent& event) {
    const auto keep = KeepNodeAlive(this);
    return UI_DoKeyboardEvent(target, event);
}

bool UI_Node::DeliverCursor(const geom::PointT<float>& where, ModifierFlags modifiers) {
    const auto keep = KeepNodeAlive(this);
    return callEventHook(mDoCursorFunction, this, where, modifiers);
}

void UI_Node::DeliverFocusChange(FocusChangeReason reason) {
    const auto keep = KeepNodeAlive(this);
    const std::vector<FocusChangedFunctionP> listeners = mFocusChangedFunctions;
    for (const auto& listener : listeners)
        if (!listener->empty()) (*listener)(this, reason);
}

void UI_Node::DeliverDraw(inkwell::Inkwell* inkwell) const {
    const auto keep = KeepNodeAlive(this);
    inkwell::SurfaceInterface* surface = inkwell ? inkwell->GetSurface() : nullptr;
    // The clip path comes from the surface's own supplier, the one its paths must have.
    inkwell::SupplierInterface* supplier = surface ? surface->GetSupplier() : nullptr;
    const boost::intrusive_ptr<inkwell::PathInterface> frame(
        surface && supplier ? supplier->MakePath() : nullptr);
    if (frame) {
        frame->AddRect(geom::RectT<float>(geom::PointT<float>(0, 0), mLocalRect.GetSize()));
        surface->PushStateStack();
        surface->Clip(*frame, true);
    }
    UI_Draw(inkwell);
    if (frame) surface->PopStateStack();
}

}  // namespace ui
}  // namespace zebui
