// Drag and drop as a nested modal run of the event loop, answered by the scripted user or
// by a drop gesture onto a node.
#pragma once

#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebcore/utility/Strings.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/OS_Event.h"

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui

namespace datatransfer {

class DataStore;
class OS_ReceiveDataBase;

// A node class that takes drops derives from this as well. Points are in the node's own
// coordinates. data lives only for the call. Each answer is the effect the target would
// take; the drag keeps it only when it is one effect the drag allows.
class DropTarget {
public:
    virtual ~DropTarget() = default;
    virtual int DragEntered(const zebcore::geom::PointT<float>& where, OS_ReceiveDataBase& data,
                            int allowedEffects) = 0;
    virtual int DraggedOver(const zebcore::geom::PointT<float>& where, OS_ReceiveDataBase& data,
                            int allowedEffects) = 0;
    virtual void DragLeft(OS_ReceiveDataBase& data) = 0;
    virtual int Dropped(const zebcore::geom::PointT<float>& where, OS_ReceiveDataBase& data,
                        int allowedEffects) = 0;
};

// The user answer code that stands for the next queued drop gesture.
constexpr int kDropGestureAnswerCode = -0x44524F50;

// Runs a drag of a copy of data inside a modal run and answers the effect it ended with.
// The run takes the next user answer: a drop gesture (QueueDropGesture) drops onto the
// drop target under its point, or the nearest one above that node; any other code is
// the effect the user chose. An effect the drag does not allow, a negative code, a
// gesture onto no target and a cancelled run all end it with none.
int RunDragAndDrop(const DataStore& data, int allowedEffects, const ui::OS_Event& event);

// Queues a drop at a point of root's coordinates as the next user answer, taken delayMs
// or later. The root is held until the gesture is taken.
void QueueDropGesture(ui::UI_Node* root, const zebcore::geom::PointT<float>& where,
                      ui::VirtualTime delayMs);
size_t GetQueuedDropGestureCount();

// What the last drag carried and how it ended, for tests.
struct DragRecord {
    unsigned long count = 0;  // drags run so far in this process
    std::vector<zebcore::UTF16String> types;
    int allowedEffects = 0;
    int effect = 0;
    bool cancelled = false;  // the run was cancelled or the user pressed escape
    bool dropped = false;    // a drop target took the drop
    bool hadNativeEvent = false;
    zebcore::UTF8String targetId;  // node id of the drop target, if any
    int depth = 0;                 // drags running now
};
const DragRecord& GetLastDrag();

}  // namespace datatransfer
}  // namespace zebui
