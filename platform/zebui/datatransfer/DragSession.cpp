// The drag loop: a modal run that ends with the scripted user's drop or choice.
#include "zebui/datatransfer/DragSession.h"

#include <deque>
#include <memory>

#include "zebui/datatransfer/DataStore.h"
#include "zebui/datatransfer/DataTypes.h"
#include "zebui/datatransfer/OS_ReceiveData.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zebui {
namespace datatransfer {
namespace {

using NodeP = boost::intrusive_ptr<ui::UI_Node>;

struct DropGesture {
    NodeP root;
    zebcore::geom::PointT<float> where;
};

// Never destroyed: a queued gesture holds a node, whose end must not run among static
// destructors after the toolkit's singletons are gone.
std::deque<DropGesture>& gestures() {
    static auto* queue = new std::deque<DropGesture>;
    return *queue;
}

DragRecord sLastDrag;
int sDragDepth = 0;
unsigned long sDragCount = 0;

// The nearest node at or above hit that takes drops, held.
NodeP dropTargetAt(ui::UI_Node* hit) {
    for (ui::UI_Node* node = hit; node; node = node->UI_GetParentNode())
        if (dynamic_cast<DropTarget*>(node)) return NodeP(node);
    return NodeP();
}

// Enter, over, then drop or leave, as a pointer would; the target and the root stay held
// while its callbacks run, which may take either out of its tree.
int dropOnto(const DropGesture& gesture, OS_ReceiveDataBase& data, int allowed,
             DragRecord& record) {
    const zebcore::geom::PointT<float> global = gesture.root->UI_LocalToGlobalF(gesture.where);
    const NodeP node =
        dropTargetAt(ui::UI_NodeManager::Get(false)->HitTest(gesture.root.get(), global));
    if (!node) return kDropEffectNone;
    record.targetId = node->UI_GetNodeID();
    DropTarget& target = *dynamic_cast<DropTarget*>(node.get());
    const zebcore::geom::PointT<float> local = node->UI_GlobalToLocalF(global);
    target.DragEntered(local, data, allowed);
    if (AllowedDropEffect(target.DraggedOver(local, data, allowed), allowed) == kDropEffectNone) {
        target.DragLeft(data);
        return kDropEffectNone;
    }
    const int effect = AllowedDropEffect(target.Dropped(local, data, allowed), allowed);
    record.dropped = effect != kDropEffectNone;
    return effect;
}

}  // namespace

int RunDragAndDrop(const DataStore& data, int allowedEffects, const ui::OS_Event& event) {
    // The drag carries its own copy: the sender may change or end during the run.
    const auto carried = std::make_shared<const DataStore>(data);
    OS_ReceiveData received(carried);
    DragRecord record;
    record.count = ++sDragCount;
    record.types = carried->Types();
    record.allowedEffects = allowedEffects;
    record.hadNativeEvent = event.HasNativeEvent();
    record.depth = ++sDragDepth;
    sLastDrag = record;

    ui::EventLoop* loop = ui::EventLoop::Get();
    ui::ModalResult result;
    try {
        result = loop->RunModal([&](const ui::UserAnswer& answer) {
            int effect = answer.code;
            if (answer.code == kDropGestureAnswerCode && !gestures().empty()) {
                const DropGesture gesture = gestures().front();
                gestures().pop_front();
                effect = dropOnto(gesture, received, allowedEffects, record);
            }
            loop->EndModal(effect);
        });
    } catch (...) {
        --sDragDepth;
        throw;
    }
    --sDragDepth;
    record.cancelled = result.cancelled || result.code < 0;
    record.effect =
        record.cancelled ? kDropEffectNone : AllowedDropEffect(result.code, allowedEffects);
    record.depth = sDragDepth;
    record.count = sDragCount;  // drags that ran inside this one count too
    sLastDrag = record;
    return record.effect;
}

void QueueDropGesture(ui::UI_Node* root, const zebcore::geom::PointT<float>& where,
                      ui::VirtualTime delayMs) {
    gestures().push_back(DropGesture{NodeP(root), where});
    ui::UserAnswer answer;
    answer.code = kDropGestureAnswerCode;
    answer.delayMs = delayMs;
    ui::EventLoop::Get()->QueueUserAnswer(answer);
}

size_t GetQueuedDropGestureCount() {
    return gestures().size();
}

const DragRecord& GetLastDrag() {
    return sLastDrag;
}

}  // namespace datatransfer
}  // namespace zebui
