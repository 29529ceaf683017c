// A window with a container view, default buttons, a modal run and a response.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebcore/utility/Flags.h"
#include "zebcore/utility/Strings.h"
#include "zebui/ui/NodeFunctions.h"
#include "zebui/ui/OS_Window.h"

class NSWindow;

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell

namespace controls {
class UI_Button;
}  // namespace controls

namespace ui {

class UI_SubView;

// The dialog's frame is position and size. The arguments after the size are the
// toolkit's window options, in its order, kept for the toolkit. An owner is either a
// node (held, so it lives as long as the dialog) or an operating system window (which
// outlives its dialogs); either may be null.
class UI_Dialog : public OS_Window {
public:
    using DialogFlags = zebcore::utility::Flags<unsigned int>;

    UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
              zebcore::geom::PointT<float> position, const zebcore::geom::PointT<float>& size,
              bool first, UI_Node* owner, bool second, bool third, bool fourth, bool fifth,
              int style, DialogFlags flags);
    UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
              zebcore::geom::PointT<float> position, const zebcore::geom::PointT<float>& size,
              bool first, NSWindow* owner, bool second, bool third, bool fourth, bool fifth,
              int style, DialogFlags flags);
    ~UI_Dialog() override;

    const zebcore::UTF16String& GetTitle() const { return mTitle; }
    UI_Node* GetOwnerNode() const { return mOwnerNode.get(); }
    NSWindow* GetOwnerWindow() const { return mOwnerWindow; }

    // The container follows the dialog's size.
    void UI_SetLocalRectF(const zebcore::geom::RectT<float>& rect) override;

    UI_SubView* GetContainer() const { return mContainer.get(); }
    // Null leaves the button as it was.
    void SetOkButton(controls::UI_Button* button);
    void SetCancelButton(controls::UI_Button* button);
    controls::UI_Button* GetOkButton() const { return mOkButton.get(); }
    controls::UI_Button* GetCancelButton() const { return mCancelButton.get(); }
    void SetInitialFocus(UI_Node* node);
    UI_Node* GetInitialFocus() const { return mInitialFocus.get(); }

    virtual void RunModal();
    bool IsRunningModal() const { return mRunDepth > 0; }
    int GetResponse() const { return mResponse; }
    virtual void SetResponse(int response);
    // Set the response (1, 0) and end the dialog's run, if it runs.
    virtual void DefaultCloseOk();
    virtual void DefaultCloseCancel();

    // The height of the title bar at the top of the dialog.
    static constexpr float kTitleBarHeight = 20.0f;

protected:
    // The window's background under a title bar with the title.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
              zebcore::geom::PointT<float> position, const zebcore::geom::PointT<float>& size);

    void closeWith(int response);
    MessageFunctionP listenTo(controls::UI_Button* button, int response);

    zebcore::UTF16String mTitle;
    boost::intrusive_ptr<UI_Node> mOwnerNode;
    NSWindow* mOwnerWindow = nullptr;
    boost::intrusive_ptr<UI_SubView> mContainer;
    boost::intrusive_ptr<controls::UI_Button> mOkButton;
    boost::intrusive_ptr<controls::UI_Button> mCancelButton;
    // Emptied when the dialog dies, so a button that outlives it calls nothing.
    MessageFunctionP mOkListener;
    MessageFunctionP mCancelListener;
    boost::intrusive_ptr<UI_Node> mInitialFocus;
    int mResponse = -1;
    int mRunDepth = 0;  // the event loop's level of the dialog's run, 0 when not running
};

}  // namespace ui
}  // namespace zebui
