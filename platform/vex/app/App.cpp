// The application singleton.
#include "vex/app/App.h"

#include "zebui/utility/ResourceManager.h"

namespace vex {
namespace app {

AppBase::AppBase() : mResourceManager(std::make_unique<zebui::utility::ResourceManager>()) {}

AppBase::~AppBase() = default;

App* App::GetApp() {
    static App sApp;
    return &sApp;
}

}  // namespace app
}  // namespace vex
