// A top-level window of the workspace: the frame that tabs and panels live in.
#pragma once

#include <memory>

#include "zebui/ui/OS_Window.h"

class NSWindow;

namespace zebworkspace {
namespace workspace {

class TopLevelWindow : public zebui::ui::OS_Window {
public:
    TopLevelWindow();
    ~TopLevelWindow() override;

    // The operating system's window of this one, made with it; the flag asks for it to be
    // made if missing, which never happens here.
    NSWindow* GetPlatformWindow(bool create) const;

private:
    std::unique_ptr<NSWindow> mPlatformWindow;
};

}  // namespace workspace
}  // namespace zebworkspace
