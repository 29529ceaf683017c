// The application object: the host's singletons that scripts reach.
#pragma once

#include <memory>

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

class App : public AppBase {
public:
    // The application singleton, made on first use and kept to the end of the process.
    // Null while the host has said the application is not up yet (SetAppAvailable).
    static App* GetApp();
    // A host that runs scripts before its application object is ready says so with false;
    // the application is available from the start.
    static void SetAppAvailable(bool available);
};

}  // namespace app
}  // namespace vex
