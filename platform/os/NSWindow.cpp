// Headless operating system windows.
#include "os/NSWindow.h"

#include <algorithm>
#include <cstring>
#include <memory>

objc_class* objc_getClass(const char* name) {
    // Never destroyed, so a class pointer stays good to the end of the process.
    static auto* sClasses = new std::vector<std::unique_ptr<objc_class>>();
    if (!name) return nullptr;
    for (const auto& known : *sClasses)
        if (std::strcmp(known->name, name) == 0) return known.get();
    char* copy = new char[std::strlen(name) + 1];
    std::strcpy(copy, name);
    sClasses->push_back(std::make_unique<objc_class>(objc_class{copy}));
    return sClasses->back().get();
}

NSWindow::~NSWindow() {
    if (mParent) mParent->removeChildWindow(this);
    for (NSWindow* child : mChildren)
        child->mParent = nullptr;
}

bool NSWindow::respondsToWorksWhenModal() const {
    return mClass && std::strstr(mClass->name, "Panel") != nullptr;
}

void NSWindow::addChildWindow(NSWindow* child, int /*ordered*/) {
    if (!child || child == this) return;
    if (child->mParent) child->mParent->removeChildWindow(child);
    child->mParent = this;
    mChildren.push_back(child);
}

void NSWindow::removeChildWindow(NSWindow* child) {
    const auto found = std::find(mChildren.begin(), mChildren.end(), child);
    if (found == mChildren.end()) return;
    mChildren.erase(found);
    child->mParent = nullptr;
}
