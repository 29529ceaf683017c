// A top-level window of the workspace.
#include "zebworkspace/workspace/TopLevelWindow.h"

#include "os/NSWindow.h"

namespace zebworkspace {
namespace workspace {

TopLevelWindow::TopLevelWindow() : mPlatformWindow(std::make_unique<NSWindow>(this)) {}

TopLevelWindow::~TopLevelWindow() = default;

NSWindow* TopLevelWindow::GetPlatformWindow(bool /*create*/) const {
    return mPlatformWindow.get();
}

}  // namespace workspace
}  // namespace zebworkspace
