// The application's workspace: the frame of windows, tabs and tool panels.
#pragma once

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell
}  // namespace zebui

namespace zebworkspace {
namespace workspace {

// Headless, the workspace has no windows yet: only what drawing outside a draw message
// needs of it.
class Workspace {
public:
    Workspace();
    virtual ~Workspace();
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    // The supplier the workspace's windows draw with: the node manager's default one.
    zebui::inkwell::SupplierInterface* GetSupplier() const;
};

}  // namespace workspace
}  // namespace zebworkspace
