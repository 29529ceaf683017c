// The application singleton.
#include "vex/app/App.h"

#include "zebui/utility/InkwellImageResourceCache.h"
#include "zebui/utility/ResourceManager.h"
#include "zebworkspace/workspace/Workspace.h"

namespace vex {
namespace app {

namespace {
bool sAppAvailable = true;
}  // namespace

AppBase::AppBase()
    : mResourceManager(std::make_unique<zebui::utility::ResourceManager>()),
      mImageCache(std::make_unique<zebui::utility::InkwellImageResourceCache>()),
      mWorkspace(std::make_unique<zebworkspace::workspace::Workspace>()) {}

AppBase::~AppBase() = default;

App* App::GetApp() {
    static App sApp;
    return sAppAvailable ? &sApp : nullptr;
}

void App::SetAppAvailable(bool available) {
    sAppAvailable = available;
}

bool App::DoHandleCommand(int commandId) {
    mCommandsReached.push_back(commandId);
    return false;
}

}  // namespace app
}  // namespace vex
