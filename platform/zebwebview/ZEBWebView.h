// A control that shows a web page.
#pragma once

#include "zebui/ui/UI_Node.h"

namespace zebwebview {

// The toolkit's choice of page renderer; the library only ever asks for 0.
using RenderingModel = int;

class ZEBWebView : public zebui::ui::UI_Node {
public:
    explicit ZEBWebView(RenderingModel model);
    ~ZEBWebView() override;
};

}  // namespace zebwebview
