// The application object: the host's singletons that scripts reach.
#pragma once

#include <memory>
#include <vector>

#include "vex/uisupport/CommandHandler.h"

namespace zebui {
namespace utility {
class InkwellImageResourceCache;
class ResourceManager;
}  // namespace utility
}  // namespace zebui

namespace zebworkspace {
namespace workspace {
class Workspace;
}  // namespace workspace
}  // namespace zebworkspace

namespace vex {
namespace app {

class AppBase {
public:
    AppBase();
    virtual ~AppBase();
    AppBase(const AppBase&) = delete;
    AppBase& operator=(const AppBase&) = delete;

    // Never null while scripts run. The manager follows the resources folder itself.
    zebui::utility::ResourceManager* GetAppResourceManager() const {
        return mResourceManager.get();
    }
    // The images decoded from the application's resources.
    zebui::utility::InkwellImageResourceCache* GetInkwellImageCache() const {
        return mImageCache.get();
    }
    zebworkspace::workspace::Workspace* GetWorkspace() const { return mWorkspace.get(); }

private:
    std::unique_ptr<zebui::utility::ResourceManager> mResourceManager;
    std::unique_ptr<zebui::utility::InkwellImageResourceCache> mImageCache;
    std::unique_ptr<zebworkspace::workspace::Workspace> mWorkspace;
};

// The application is the last handler of every command chain. It carries out no command
// itself; it remembers the ones that reached it, so a host can tell that a command went
// all the way down.
class App : public AppBase, public uisupport::CommandHandler {
public:
    // The application singleton, made on first use and kept to the end of the process.
    // Null while the host has said the application is not up yet (SetAppAvailable).
    static App* GetApp();
    // A host that runs scripts before its application object is ready says so with false;
    // the application is available from the start.
    static void SetAppAvailable(bool available);

    // The commands that reached the application's own handling, oldest first.
    const std::vector<int>& GetCommandsReached() const { return mCommandsReached; }
    void ClearCommandsReached() { mCommandsReached.clear(); }

protected:
    bool DoHandleCommand(int commandId) override;

private:
    std::vector<int> mCommandsReached;
};

}  // namespace app
}  // namespace vex
