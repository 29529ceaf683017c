// Dialogs.
#include "zebui/ui/UI_Dialog.h"

#include <boost/function.hpp>

#include "zebui/controls/ControlFace.h"
#include "zebui/controls/UI_Button.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/UI_NodeManager.h"
#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace ui {

namespace face = controls::face;

UI_Dialog::UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
                     zebcore::geom::PointT<float> position,
                     const zebcore::geom::PointT<float>& size)
    : OS_Window(supplier), mTitle(title), mContainer(new UI_SubView()) {
    mContainer->UI_SetNodeID("container");
    ChildPushBack(mContainer);
    UI_SetLocalRectF(zebcore::geom::RectT<float>(position.x, position.y, size.x, size.y));
}

void UI_Dialog::UI_SetLocalRectF(const zebcore::geom::RectT<float>& rect) {
    OS_Window::UI_SetLocalRectF(rect);
    const zebcore::geom::RectT<float> frame = UI_GetLocalRectF(false);
    if (mContainer)
        mContainer->UI_SetLocalRectF(zebcore::geom::RectT<float>(
            0, kTitleBarHeight, frame.width,
            frame.height > kTitleBarHeight ? frame.height - kTitleBarHeight : 0));
}

UI_Dialog::UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
                     zebcore::geom::PointT<float> position,
                     const zebcore::geom::PointT<float>& size, bool /*first*/, UI_Node* owner,
                     bool /*second*/, bool /*third*/, bool /*fourth*/, bool /*fifth*/,
                     int /*style*/, DialogFlags /*flags*/)
    : UI_Dialog(supplier, title, position, size) {
    mOwnerNode = owner;
}

UI_Dialog::UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
                     zebcore::geom::PointT<float> position,
                     const zebcore::geom::PointT<float>& size, bool /*first*/, NSWindow* owner,
                     bool /*second*/, bool /*third*/, bool /*fourth*/, bool /*fifth*/,
                     int /*style*/, DialogFlags /*flags*/)
    : UI_Dialog(supplier, title, position, size) {
    mOwnerWindow = owner;
}

UI_Dialog::~UI_Dialog() {
    if (mOkListener) mOkListener->clear();
    if (mCancelListener) mCancelListener->clear();
}

MessageFunctionP UI_Dialog::listenTo(controls::UI_Button* button, int response) {
    MessageFunctionP listener(
        new MessageFunction([this, response](MessageT<UI_Node>*) { closeWith(response); }));
    button->NotifyWhenChanged(listener);
    return listener;
}

void UI_Dialog::SetOkButton(controls::UI_Button* button) {
    if (!button) return;
    if (mOkListener) mOkListener->clear();
    mOkButton = button;
    mOkListener = listenTo(button, 1);
}

void UI_Dialog::SetCancelButton(controls::UI_Button* button) {
    if (!button) return;
    if (mCancelListener) mCancelListener->clear();
    mCancelButton = button;
    mCancelListener = listenTo(button, 0);
}

void UI_Dialog::SetInitialFocus(UI_Node* node) {
    mInitialFocus = node;
}

void UI_Dialog::SetResponse(int response) {
    mResponse = response;
}

void UI_Dialog::DefaultCloseOk() {
    closeWith(1);
}

void UI_Dialog::DefaultCloseCancel() {
    closeWith(0);
}

void UI_Dialog::closeWith(int response) {
    SetResponse(response);
    if (mRunDepth > 0) EventLoop::Get()->EndModalAt(mRunDepth, response);
}

void UI_Dialog::RunModal() {
    if (mRunDepth > 0) return;  // already running: one run per dialog
    const boost::intrusive_ptr<UI_Node> keep(this);
    UI_NodeManager* manager = UI_NodeManager::Get(false);
    EventLoop* loop = EventLoop::Get();
    mResponse = -1;
    manager->PushModalWindow(this);
    UI_Show(true);
    UI_Activate();
    if (mInitialFocus) manager->SetKeyboardFocus(mInitialFocus.get(), kFocusChangeReason_Program);
    mRunDepth = loop->GetModalDepth() + 1;
    const ModalResult result = loop->RunModal([this](const UserAnswer& answer) {
        if (answer.code == 1 || answer.code == 0) {
            closeWith(answer.code);
        } else {
            SetResponse(-1);
            EventLoop::Get()->EndModalAt(mRunDepth, -1);
        }
    });
    mRunDepth = 0;
    if (result.cancelled) SetResponse(-1);
    manager->PopModalWindow(this);
    UI_Show(false);
}

void UI_Dialog::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    face::FrameRect(inkwell, bounds, face::kFieldFill, face::kFaceEdge);
    const zebcore::geom::RectT<float> bar(0, 0, bounds.width, kTitleBarHeight);
    face::FrameRect(inkwell, bar, face::kFaceFill, face::kFaceEdge);
    face::DrawText(inkwell, mTitle, bar, inkwell::kTextAlignment_Center);
}

}  // namespace ui
}  // namespace zebui
