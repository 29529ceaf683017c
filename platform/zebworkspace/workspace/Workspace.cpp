// The application's workspace.
#include "zebworkspace/workspace/Workspace.h"

#include "zebui/ui/UI_NodeManager.h"
#include "zebworkspace/workspace/TopLevelWindow.h"

namespace zebworkspace {
namespace workspace {

Workspace::Workspace() : mMainWindow(new TopLevelWindow) {
    mMainWindow->UI_SetNodeID("mainTopLevelWindow");
}

Workspace::~Workspace() = default;

zebui::inkwell::SupplierInterface* Workspace::GetSupplier() const {
    return zebui::ui::UI_NodeManager::Get(false)->GetDefaultSupplier();
}

}  // namespace workspace
}  // namespace zebworkspace
