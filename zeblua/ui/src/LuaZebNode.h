// A toolkit node class whose drawing, mouse handling and resizing a script can take over.
#pragma once

#include "zebcore/geom/RectT.h"
#include "zeblua/ui/src/LuaBindableNode.h"
#include "zeblua/ui/src/ZebOperationCalls.h"
#include "zeblua/ui/src/ZebOperationNames.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {

// The mix-in's own functions come first, then T's operation (and with it the node's
// hooks): "uiDraw" answering true skips T::UI_Draw; a failing "uiMouseEvent" takes the
// event without T::UI_DoMouseEvent, a succeeding one leaves the answer to it; a failing
// "uiSizeChanged" skips T::UI_SizeChanged. The node is held across each call, which may
// drop its last other reference.
template <class T> class LuaZebNode : public T, public LuaBindableNode {
public:
    using T::T;

    void UI_Draw(zebui::inkwell::Inkwell* inkwell) const override {
        const auto keep = zebui::ui::KeepNodeAlive(this);
        LuaFunctionEntry entry;
        if (FindBound(kUiDraw, entry) && CallBoundDraw(entry, inkwell)) return;
        T::UI_Draw(inkwell);
    }

    bool UI_DoMouseEvent(zebui::ui::UI_Node* target, const zebui::ui::MouseEvent& event) override {
        const auto keep = zebui::ui::KeepNodeAlive(this);
        LuaFunctionEntry entry;
        if (FindBound(kUiMouseEvent, entry) &&
            !CallBoundMouseEvent(entry, nullptr, event, BoundAnswer::kChecked))
            return true;
        return T::UI_DoMouseEvent(target, event);
    }

    void UI_SizeChanged(const zebcore::geom::RectT<float>& rect) override {
        const auto keep = zebui::ui::KeepNodeAlive(this);
        LuaFunctionEntry entry;
        if (FindBound(kUiSizeChanged, entry) && !CallBoundRect(entry, rect, BoundAnswer::kChecked))
            return;
        T::UI_SizeChanged(rect);
    }
};

}  // namespace ui
}  // namespace zeblua
