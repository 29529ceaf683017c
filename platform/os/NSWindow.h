// The operating system's window object, headless.
#pragma once

namespace zebui {
namespace ui {
class OS_Window;
}  // namespace ui
}  // namespace zebui

// What a toolkit window is on the screen. Headless it is only the link back to the
// toolkit window that made it, which owns it and outlives every use of it.
class NSWindow {
public:
    explicit NSWindow(zebui::ui::OS_Window* window) : mWindow(window) {}
    NSWindow(const NSWindow&) = delete;
    NSWindow& operator=(const NSWindow&) = delete;

    zebui::ui::OS_Window* GetToolkitWindow() const { return mWindow; }

private:
    zebui::ui::OS_Window* mWindow;
};
