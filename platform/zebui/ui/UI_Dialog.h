// A window with a container view, default buttons, a modal run and a response.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebcore/utility/Flags.h"
#include "zebcore/utility/Strings.h"
#include "zebui/ui/OS_Window.h"

class NSWindow;

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell

namespace ui {

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

    // The height of the title bar at the top of the dialog.
    static constexpr float kTitleBarHeight = 20.0f;

protected:
    // The window's background under a title bar with the title.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    UI_Dialog(const inkwell::SupplierInterface* supplier, const zebcore::UTF16String& title,
              zebcore::geom::PointT<float> position, const zebcore::geom::PointT<float>& size);

    zebcore::UTF16String mTitle;
    boost::intrusive_ptr<UI_Node> mOwnerNode;
    NSWindow* mOwnerWindow = nullptr;
};

}  // namespace ui
}  // namespace zebui
