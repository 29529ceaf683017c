// The child list that every node has.
#pragma once

#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zebui/ui/ThemeOwner.h"

namespace zebui {
namespace ui {

class UI_Node;

// The container owns its children: one counted reference each. A child has one parent;
// pushing it into another container moves it there. A child that is removed, or whose
// parent dies, lives on while others hold it, with a null parent.
// Indexes count from 0. Out-of-range indexes and a foreign child are ignored silently,
// since scripts pass them through unchecked.
// The children are drawn in list order, so every change of the list invalidates the whole
// owner. A move or swap within range does so even when it leaves the order as it was:
// the toolkit doesn't compare, and tests see each call that was made.
// The iterators are those of the list itself: changing the list ends them.
class UI_Container : public ThemeOwner {
public:
    using ChildList = std::vector<boost::intrusive_ptr<UI_Node>>;
    using ChildIterator = ChildList::const_iterator;

    ~UI_Container() override;
    UI_Container(const UI_Container&) = delete;
    UI_Container& operator=(const UI_Container&) = delete;

    // Appends the child. A null child, the node itself or one of its ancestors is refused
    // with an assertion report, since that would make a cycle.
    virtual void ChildPushBack(boost::intrusive_ptr<UI_Node> child);
    void ChildRemove(boost::intrusive_ptr<UI_Node> child);
    // Null past the end.
    boost::intrusive_ptr<UI_Node> ChildGet(unsigned long index) const;
    unsigned long ChildSize() const { return static_cast<unsigned long>(mChildren.size()); }
    // Takes the child at from out and puts it back so that its index is to.
    void ChildMove(unsigned long from, unsigned long to);
    void ChildSwapOrder(unsigned long first, unsigned long second);
    void DeleteChildren();
    ChildIterator ChildBegin() const { return mChildren.begin(); }
    ChildIterator ChildEnd() const { return mChildren.end(); }

protected:
    // owner is the node this container is part of.
    explicit UI_Container(UI_Node& owner);

private:
    void redrawOwner();

    UI_Node& mOwner;
    ChildList mChildren;
};

}  // namespace ui
}  // namespace zebui
