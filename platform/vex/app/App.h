// The application object: the host's singletons that scripts reach.
#pragma once

#include <memory>

namespace zebui {
namespace utility {
class ResourceManager;
}
}  // namespace zebui

namespace vex {
namespace app {

class AppBase {
public:
    AppBase();
    virtual ~AppBase();
    AppBase(const AppBase&) = delete;
    AppBase& operator=(const AppBase&) = delete;

    // Never null while scripts run.
    zebui::utility::ResourceManager* GetAppResourceManager() const {
        return mResourceManager.get();
    }

private:
    std::unique_ptr<zebui::utility::ResourceManager> mResourceManager;
};

class App : public AppBase {
public:
    // The application singleton, made on first use and kept to the end of the process.
    static App* GetApp();
};

}  // namespace app
}  // namespace vex
