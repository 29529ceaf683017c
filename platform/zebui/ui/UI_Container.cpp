// Child lists of nodes.
#include "zebui/ui/UI_Container.h"

#include <algorithm>
#include <utility>

#include "zebcore/debug/Debug.h"
#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace ui {

UI_Container::UI_Container(UI_Node& owner) : mOwner(owner) {}

UI_Container::~UI_Container() = default;

void UI_Container::ChildPushBack(boost::intrusive_ptr<UI_Node> child) {
    ZEB_ASSERT_MSG(child, "ChildPushBack without a node");
    if (!child) return;
    const bool makesCycle = child.get() == &mOwner || child->IsAncestorOf(&mOwner);
    ZEB_ASSERT_MSG(!makesCycle, "a node can't become a child of itself or of a descendant");
    if (makesCycle) return;
    if (UI_Node* oldParent = child->mParent) oldParent->ChildRemove(child);
    child->mParent = &mOwner;
    mChildren.push_back(std::move(child));
    redrawOwner();
}

void UI_Container::ChildRemove(boost::intrusive_ptr<UI_Node> child) {
    if (!child || child->mParent != &mOwner) return;
    const auto found = std::find(mChildren.begin(), mChildren.end(), child);
    if (found == mChildren.end()) return;
    child->mParent = nullptr;
    mChildren.erase(found);  // the argument still holds the child
    redrawOwner();
}

boost::intrusive_ptr<UI_Node> UI_Container::ChildGet(unsigned long index) const {
    return index < mChildren.size() ? mChildren[index] : boost::intrusive_ptr<UI_Node>();
}

void UI_Container::ChildMove(unsigned long from, unsigned long to) {
    if (from >= mChildren.size() || to >= mChildren.size()) return;
    boost::intrusive_ptr<UI_Node> moving = mChildren[from];
    mChildren.erase(mChildren.begin() + from);
    mChildren.insert(mChildren.begin() + to, std::move(moving));
    redrawOwner();
}

void UI_Container::ChildSwapOrder(unsigned long first, unsigned long second) {
    if (first >= mChildren.size() || second >= mChildren.size()) return;
    std::swap(mChildren[first], mChildren[second]);
    redrawOwner();
}

void UI_Container::DeleteChildren() {
    // The list is emptied before any child can die, so a dying child finds a
    // consistent parent, and the children are orphaned before they are let go.
    ChildList leaving;
    leaving.swap(mChildren);
    for (const auto& child : leaving)
        child->mParent = nullptr;
    if (!leaving.empty()) redrawOwner();
}

void UI_Container::redrawOwner() {
    mOwner.UI_Invalidate(nullptr, 0);
}

}  // namespace ui
}  // namespace zebui
