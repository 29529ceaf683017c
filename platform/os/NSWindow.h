// The operating system's window object, headless.
#pragma once

#include <vector>

namespace zebui {
namespace ui {
class OS_Window;
}  // namespace ui
}  // namespace zebui

// A window class of the platform, named; objc_getClass hands out one per name.
struct objc_class {
    const char* name;
};
objc_class* objc_getClass(const char* name);

// What a toolkit window is on the screen. Headless it is the link back to the toolkit
// window that made it (which owns it and outlives every use of it) and the records a
// test reads: its class, level, shadow, whether it works while a modal window runs, and
// the child windows attached to it. A window that goes detaches itself from its parent
// and its children.
class NSWindow {
public:
    explicit NSWindow(zebui::ui::OS_Window* window, objc_class* windowClass = nullptr,
                      long level = 0)
        : mWindow(window), mClass(windowClass), mLevel(level) {}
    ~NSWindow();
    NSWindow(const NSWindow&) = delete;
    NSWindow& operator=(const NSWindow&) = delete;

    zebui::ui::OS_Window* GetToolkitWindow() const { return mWindow; }
    objc_class* GetClass() const { return mClass; }
    long GetLevel() const { return mLevel; }

    void setHasShadow(bool shadow) { mHasShadow = shadow; }
    bool hasShadow() const { return mHasShadow; }
    // Panels answer true; other windows don't know the message.
    bool respondsToWorksWhenModal() const;
    void setWorksWhenModal(bool works) { mWorksWhenModal = works; }
    bool worksWhenModal() const { return mWorksWhenModal; }

    // ordered: 1 above the parent, -1 below. A child already attached moves to the end.
    void addChildWindow(NSWindow* child, int ordered);
    void removeChildWindow(NSWindow* child);
    NSWindow* parentWindow() const { return mParent; }
    const std::vector<NSWindow*>& childWindows() const { return mChildren; }

private:
    zebui::ui::OS_Window* mWindow;
    objc_class* mClass;
    long mLevel;
    bool mHasShadow = false;
    bool mWorksWhenModal = false;
    NSWindow* mParent = nullptr;
    std::vector<NSWindow*> mChildren;
};
