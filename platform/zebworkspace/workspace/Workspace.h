// The application's workspace: the frame of windows, tabs and tool panels.
#pragma once

#include <boost/intrusive_ptr.hpp>

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell
}  // namespace zebui

namespace zebworkspace {
namespace workspace {

class TopLevelWindow;

// Headless, the workspace has its main window and what drawing outside a draw message
// needs of it.
class Workspace {
public:
    Workspace();
    virtual ~Workspace();
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    // The supplier the workspace's windows draw with: the node manager's default one.
    zebui::inkwell::SupplierInterface* GetSupplier() const;
    // The application's main window, hidden, with the node id "mainTopLevelWindow". It
    // lives as long as the workspace: dialogs without an owner of their own belong to it.
    TopLevelWindow* GetMainTopLevelWindow() const { return mMainWindow.get(); }

private:
    boost::intrusive_ptr<TopLevelWindow> mMainWindow;
};

}  // namespace workspace
}  // namespace zebworkspace
