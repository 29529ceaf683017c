// The toolkit core: counting, the node tree, coordinates, hooks and dispatch, focus,
// user data, messages and the non-optional cast.
#include <string>
#include <vector>

#include <boost/any.hpp>
#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include "zebcore/config/ThrowError.h"
#include "zebcore/config/ZebException.h"
#include "zebcore/debug/Debug.h"
#include "zebcore/utility/NonOptionalDynamicCast.h"
#include "zebcore/utility/RefCountedObject.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/controls/UI_ControlChangedMessage.h"
#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MessageFunctionAdapter.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/OS_Window.h"
#include "zebui/ui/UI_NodeManager.h"
#include "zebui/ui/UI_SubView.h"

namespace {

using namespace zebui::ui;
using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zebcore::utility::RefCountedObject;
using zebui::controls::UI_InteractiveControlView;
namespace debug = zebcore::debug;

// Sets a flag when it dies.
class Tracked : public RefCountedObject {
public:
    explicit Tracked(bool& destroyed) : mDestroyed(destroyed) {}
    ~Tracked() override { mDestroyed = true; }

private:
    bool& mDestroyed;
};

// Logs its own virtual event handling and answers as told. Like every override it calls
// the base first, where the node's hooks run, and handles only what they left.
class LoggingNode : public UI_SubView {
public:
    explicit LoggingNode(std::vector<std::string>& log) : mLog(log) {}
    bool UI_DoPreMouseEvent(UI_Node* target, const MouseEvent& event) override {
        return UI_SubView::UI_DoPreMouseEvent(target, event) || log("pre virtual");
    }
    bool UI_DoMouseEvent(UI_Node* target, const MouseEvent& event) override {
        return UI_SubView::UI_DoMouseEvent(target, event) || log("mouse virtual");
    }
    bool UI_DoKeyboardEvent(UI_Node* target, const KeyboardEvent& event) override {
        return UI_SubView::UI_DoKeyboardEvent(target, event) ||
               log(UI_GetNodeID() + " key virtual");
    }
    void UI_SizeChanged(const RectT<float>& rect) override {
        mLog.push_back("size virtual " + std::to_string(int(rect.width)));
        UI_SubView::UI_SizeChanged(rect);
    }
    void UI_Draw(zebui::inkwell::Inkwell* inkwell) const override {
        mLog.push_back(UI_GetNodeID() + " draw");
        UI_SubView::UI_Draw(inkwell);
    }

    std::string answering;  // the entry that answers true

private:
    bool log(const std::string& entry) const {
        mLog.push_back(entry);
        return entry == answering;
    }
    std::vector<std::string>& mLog;
};

MouseEvent mouseEvent(MouseAction action) {
    return MouseEvent(action, kMouseButton_Left, 1, PointT<float>(3, 4), 0, OS_Event(), 0, 0, 0, 0,
                      kSwipeDirection_None, 0);
}

KeyboardEvent keyEvent() {
    return KeyboardEvent(kKeyboardAction_Down, u"a", KeyboardCode(kKeyCode_A), 0, false);
}

class ToolkitCoreTest : public ::testing::Test {
protected:
    void SetUp() override { debug::ClearRecordedAssertReports(); }

    static boost::intrusive_ptr<UI_SubView> newView(const std::string& id,
                                                    const RectT<float>& rect = RectT<float>()) {
        boost::intrusive_ptr<UI_SubView> view(new UI_SubView);
        view->UI_SetNodeID(id);
        view->UI_SetLocalRectF(rect);
        return view;
    }
};

TEST_F(ToolkitCoreTest, CountStartsAtZeroAndTheLastReleaseDestroysUnlessKeptAlive) {
    bool destroyed = false;
    Tracked* object = new Tracked(destroyed);
    EXPECT_EQ(object->GetReferenceCount(), 0);
    {
        boost::intrusive_ptr<Tracked> first(object);
        EXPECT_EQ(object->GetReferenceCount(), 1);
        {
            boost::intrusive_ptr<Tracked> second = first;
            EXPECT_EQ(object->GetReferenceCount(), 2);
        }
        EXPECT_FALSE(destroyed);
    }
    EXPECT_TRUE(destroyed);

    bool kept = false;
    Tracked* keptObject = new Tracked(kept);
    keptObject->SetKeepAliveAtZero(true);
    { boost::intrusive_ptr<Tracked> holder(keptObject); }
    EXPECT_FALSE(kept);
    EXPECT_EQ(keptObject->GetReferenceCount(), 0);
    keptObject->SetKeepAliveAtZero(false);
    { boost::intrusive_ptr<Tracked> holder(keptObject); }
    EXPECT_TRUE(kept);
    EXPECT_TRUE(debug::RecordedAssertReports().empty());

    // Destroying a held object is reported with the toolkit's own expression.
    bool early = false;
    Tracked* held = new Tracked(early);
    held->AddReference();
    delete held;
    ASSERT_EQ(debug::RecordedAssertReports().size(), 1u);
    EXPECT_EQ(debug::RecordedAssertReports()[0].expression, "mReferenceCount == 0");
}

TEST_F(ToolkitCoreTest, AReferenceTakenDuringDestructionDoesNotDestroyTwice) {
    class SelfReferencing : public RefCountedObject {
    public:
        ~SelfReferencing() override { boost::intrusive_ptr<SelfReferencing> again(this); }
    };
    { boost::intrusive_ptr<SelfReferencing> holder(new SelfReferencing); }
    SUCCEED() << "no double delete under the sanitizers";
}

TEST_F(ToolkitCoreTest, ARemovedNodeStaysValidWhileHeldAndLosesItsParent) {
    auto parent = newView("parent");
    auto child = newView("child");
    parent->ChildPushBack(child);
    EXPECT_EQ(child->GetReferenceCount(), 2);
    EXPECT_EQ(child->UI_GetParentNode(), parent.get());

    parent->ChildRemove(child);
    EXPECT_EQ(child->UI_GetParentNode(), nullptr);
    EXPECT_EQ(child->GetReferenceCount(), 1);
    EXPECT_EQ(parent->ChildSize(), 0u);

    // A parent that dies orphans the children others still hold, and frees the rest.
    parent->ChildPushBack(child);
    bool orphanFreed = false;
    boost::intrusive_ptr<UI_SubView> unheld(new UI_SubView);
    unheld->SetUserData(boost::intrusive_ptr<Tracked>(new Tracked(orphanFreed)));
    parent->ChildPushBack(unheld);
    unheld.reset();
    parent.reset();
    EXPECT_EQ(child->UI_GetParentNode(), nullptr);
    EXPECT_EQ(child->GetReferenceCount(), 1);
    EXPECT_TRUE(orphanFreed);
}

TEST_F(ToolkitCoreTest, ChildListOperationsCountFromZeroAndRefuseCycles) {
    auto parent = newView("p");
    for (const char* id : {"a", "b", "c", "d"})
        parent->ChildPushBack(newView(id));
    const auto order = [&] {
        std::string ids;
        for (auto it = parent->ChildBegin(); it != parent->ChildEnd(); ++it)
            ids += (*it)->UI_GetNodeID();
        return ids;
    };
    parent->ChildPushBack(parent->ChildGet(0));
    EXPECT_EQ(order(), "bcda") << "pushing an own child again moves it last";
    EXPECT_EQ(parent->ChildGet(3)->UI_GetIndex(), 3);
    EXPECT_EQ(parent->ChildGet(4), nullptr);
    EXPECT_EQ(parent->UI_GetIndex(), -1);

    // Moving a child to another parent takes it out of the first.
    auto other = newView("o");
    other->ChildPushBack(parent->ChildGet(0));
    EXPECT_EQ(order(), "cda");
    EXPECT_EQ(other->ChildGet(0)->UI_GetParentNode(), other.get());

    // A cycle is refused with a report.
    auto grandChild = other->ChildGet(0);
    grandChild->ChildPushBack(other);
    parent->ChildPushBack(parent);
    EXPECT_EQ(other->UI_GetParentNode(), nullptr);
    EXPECT_EQ(parent->ChildSize(), 3u);
    EXPECT_EQ(debug::RecordedAssertReports().size(), 2u);

    parent->DeleteChildren();
    EXPECT_EQ(parent->ChildSize(), 0u);
}

// Children are drawn in list order, so the owner asks for a whole redraw at every change;
// a move or swap within range asks even when the order stays, as the toolkit doesn't
// compare, and an ignored call asks nothing.
TEST_F(ToolkitCoreTest, ChildListChangesInvalidateTheWholeOwner) {
    auto parent = newView("p");
    const auto invalidations = [&] { return parent->GetRedrawRecord().invalidateCount; };
    parent->ChildPushBack(newView("a"));
    parent->ChildPushBack(newView("b"));
    EXPECT_EQ(invalidations(), 2u);
    EXPECT_TRUE(parent->GetRedrawRecord().wholeNode);
    parent->ChildMove(1, 1);
    parent->ChildSwapOrder(0, 0);
    EXPECT_EQ(invalidations(), 4u) << "calls that leave the order";
    parent->ChildMove(0, 2);
    parent->ChildSwapOrder(5, 0);
    parent->ChildRemove(newView("stranger"));
    EXPECT_EQ(invalidations(), 4u) << "ignored calls";
    parent->ChildRemove(parent->ChildGet(0));
    parent->DeleteChildren();
    parent->DeleteChildren();
    EXPECT_EQ(invalidations(), 6u) << "removing, and deleting what is there";
}

TEST_F(ToolkitCoreTest, ANodeInNoWindowsTreeDrawsWithTheManagersDefaultSupplier) {
    auto top = newView("top");
    auto child = newView("child");
    top->ChildPushBack(child);
    const zebui::inkwell::SupplierInterface* fallback =
        UI_NodeManager::Get(false)->GetDefaultSupplier();
    ASSERT_NE(fallback, nullptr);
    EXPECT_EQ(top->UI_GetDrawSupplier(), fallback);
    EXPECT_EQ(child->UI_GetDrawSupplier(), fallback);
}

// A window is the root of its tree: its origin counts, and it starts hidden.
TEST_F(ToolkitCoreTest, AWindowsOriginCountsInItsNodesGlobalCoordinates) {
    boost::intrusive_ptr<OS_Window> window(new OS_Window);
    window->UI_SetLocalRectF(RectT<float>(100, 50, 800, 600));
    auto view = newView("view", RectT<float>(10, 20, 300, 200));
    window->ChildPushBack(view);
    EXPECT_EQ(view->UI_LocalToGlobalF(PointT<float>(1, 2)), PointT<float>(111, 72));
    EXPECT_EQ(view->UI_GetRootNode(), window.get());
    EXPECT_EQ(window->UI_GetRootNode(), window.get());
    EXPECT_FALSE(window->UI_IsShown());
    EXPECT_TRUE(view->UI_IsShown());
}

TEST_F(ToolkitCoreTest, MouseDispatchRunsPreHookPreVirtualHookVirtualUntilOneTakesIt) {
    const char* const stages[] = {"pre hook", "pre virtual", "mouse hook", "mouse virtual"};
    // Which stage answers true, and what ran.
    const std::vector<std::pair<std::string, int>> cases = {
        {"", 4}, {"pre hook", 1}, {"pre virtual", 2}, {"mouse hook", 3}, {"mouse virtual", 4}};
    for (const auto& c : cases) {
        std::vector<std::string> log;
        boost::intrusive_ptr<LoggingNode> node(new LoggingNode(log));
        node->answering = c.first;
        UI_Node* seenTarget = nullptr;
        const auto hook = [&](const std::string& name) {
            // Answers through the bool& alone, which counts as taken as well.
            return boost::make_shared<CustomMouseEventFunction>(
                [&, name](UI_Node* target, const MouseEvent&, bool& handled) {
                    seenTarget = target;
                    log.push_back(name);
                    handled = name == node->answering;
                    return false;
                });
        };
        node->UI_SetCustomPreMouseEventFunction(hook("pre hook"));
        node->UI_SetCustomMouseEventFunction(hook("mouse hook"));
        const bool taken = UI_NodeManager::Get(false)->DispatchMouseEvent(
            node.get(), mouseEvent(kMouseAction_Down));
        ASSERT_EQ(log.size(), size_t(c.second)) << "answering: " << c.first;
        for (int i = 0; i < c.second; ++i)
            EXPECT_EQ(log[i], stages[i]);
        EXPECT_EQ(taken, !c.first.empty());
        EXPECT_EQ(seenTarget, node.get());
        EXPECT_TRUE(node->UI_IsMouseOver(false));
        UI_NodeManager::Get(false)->DispatchMouseEvent(node.get(), mouseEvent(kMouseAction_Exit));
        EXPECT_FALSE(node->UI_IsMouseOver(false));
    }
}

TEST_F(ToolkitCoreTest, AHookThatReplacesItselfWhileRunningFinishesSafely) {
    std::vector<std::string> log;
    boost::intrusive_ptr<LoggingNode> node(new LoggingNode(log));
    const std::string word = "still here";
    node->UI_SetCustomMouseEventFunction(boost::make_shared<CustomMouseEventFunction>(
        [&, word](UI_Node* target, const MouseEvent&, bool&) {
            target->UI_SetCustomMouseEventFunction(CustomMouseEventFunctionP());
            log.push_back(word);  // reads the capture after its owner was dropped
            return true;
        }));
    EXPECT_TRUE(
        UI_NodeManager::Get(false)->DispatchMouseEvent(node.get(), mouseEvent(kMouseAction_Up)));
    EXPECT_FALSE(
        UI_NodeManager::Get(false)->DispatchMouseEvent(node.get(), mouseEvent(kMouseAction_Up)));
    EXPECT_EQ(log, (std::vector<std::string>{"pre virtual", "still here", "pre virtual",
                                             "mouse virtual"}));
}

TEST_F(ToolkitCoreTest, KeyEventsGoHookThenVirtualAndBubbleUpToTheFocusedNodesAncestors) {
    std::vector<std::string> log;
    boost::intrusive_ptr<LoggingNode> outer(new LoggingNode(log));
    boost::intrusive_ptr<LoggingNode> inner(new LoggingNode(log));
    outer->UI_SetNodeID("outer");
    inner->UI_SetNodeID("inner");
    outer->ChildPushBack(inner);
    outer->answering = "outer key virtual";
    outer->UI_SetCustomKeyboardEventFunction(boost::make_shared<CustomKeyboardEventFunction>(
        [&](UI_Node* target, const KeyboardEvent& event, bool&) {
            log.push_back("outer hook for " + target->UI_GetNodeID() + " " +
                          char(event.GetCharacter(0)));
            return false;
        }));

    ASSERT_TRUE(inner->UI_GainKeyboardFocus(kFocusChangeReason_Program));
    EXPECT_TRUE(UI_NodeManager::Get(false)->DispatchKeyboardEvent(nullptr, keyEvent()));
    EXPECT_EQ(log, (std::vector<std::string>{"inner key virtual", "outer hook for inner a",
                                             "outer key virtual"}));
    EXPECT_EQ(keyEvent().GetCharacter(5), 0);
    EXPECT_EQ(keyEvent().GetCode().GetValue(true), unsigned(kKeyCode_A));
}

// Pointer events at global points: the node they reach, the chain they bubble along, and
// capture from a taken down to the up, which a dying captor ends.
TEST_F(ToolkitCoreTest, PointerEventsReachTheTopmostNodeAndStayWithTheNodeThatTookTheDown) {
    UI_NodeManager* manager = UI_NodeManager::Get(false);
    auto root = newView("root", RectT<float>(100, 100, 50, 50));  // origins add up
    auto lower = newView("lower", RectT<float>(0, 0, 30, 30));
    auto upper = newView("upper", RectT<float>(20, 20, 30, 30));
    root->ChildPushBack(lower);
    root->ChildPushBack(upper);
    std::vector<std::string> log;
    const auto taking = [&](const std::string& taken) {
        return boost::make_shared<CustomMouseEventFunction>(
            [&, taken](UI_Node* target, const MouseEvent& event, bool&) {
                log.push_back(target->UI_GetNodeID() + "@" +
                              std::to_string(int(event.GetPosition().x)));
                return target->UI_GetNodeID() == taken && event.GetAction() != kMouseAction_Enter;
            });
    };
    root->UI_SetCustomMouseEventFunction(taking("lower"));
    lower->UI_SetCustomMouseEventFunction(taking("lower"));
    const auto at = [](MouseAction action, float x, float y) {
        return MouseEvent(action, kMouseButton_Left, 1, PointT<float>(x, y), 0, OS_Event(), 0, 0, 0,
                          0, kSwipeDirection_None, 0);
    };

    // (125, 125) is under both children: the later one is on top, and bubbles to the root.
    EXPECT_EQ(manager->HitTest(root.get(), PointT<float>(125, 125)), upper.get());
    EXPECT_EQ(manager->DispatchMouseEventAt(root.get(), at(kMouseAction_Down, 125, 125)), nullptr);
    EXPECT_EQ(log, (std::vector<std::string>{"upper@25"})) << "upper has no hook; root saw it";
    log.clear();
    upper->UI_SetDisabled(true);
    EXPECT_EQ(manager->DispatchMouseEventAt(root.get(), at(kMouseAction_Down, 125, 125)), lower);
    EXPECT_EQ(manager->GetMouseCapture(), lower.get());
    EXPECT_TRUE(lower->UI_HasKeyboardFocus(false)) << "a taken down gives the focus";
    // Captured: a drag far outside still goes to lower, in its own coordinates.
    log.clear();
    manager->DispatchMouseEventAt(root.get(), at(kMouseAction_Drag, 190, 110));
    EXPECT_EQ(log, (std::vector<std::string>{"lower@90"}));
    lower.reset();
    root->ChildRemove(root->ChildGet(0));  // the captor dies
    EXPECT_EQ(manager->GetMouseCapture(), nullptr);
    EXPECT_EQ(manager->DispatchMouseEventAt(root.get(), at(kMouseAction_Up, 190, 110)), nullptr)
        << "outside the root nothing is hit";
    EXPECT_EQ(manager->HitTest(root.get(), PointT<float>(99, 125)), nullptr);
}

TEST_F(ToolkitCoreTest, TheCursorHookGetsThePointAndTheModifierByte) {
    auto node = newView("n");
    UI_NodeManager* manager = UI_NodeManager::Get(false);
    EXPECT_FALSE(manager->DispatchCursor(node.get(), PointT<float>(1, 2), 0));
    std::string seen;
    node->UI_SetCustomDoCursorFunction(boost::make_shared<CustomDoCursorFunction>(
        [&](UI_Node* target, const PointT<float>& where, ModifierFlags modifiers, bool& handled) {
            seen = target->UI_GetNodeID() + " " + std::to_string(int(where.x)) + "," +
                   std::to_string(int(where.y)) + " " + std::to_string(modifiers.GetValue());
            handled = true;
            return false;
        }));
    EXPECT_TRUE(manager->DispatchCursor(node.get(), PointT<float>(7, 9),
                                        kModifierKey_Shift | kModifierKey_Command));
    EXPECT_EQ(seen, "n 7,9 9");
}

TEST_F(ToolkitCoreTest, AFocusListenerInstalledTwiceIsCalledOnce) {
    auto a = newView("a");
    int calls = 0;
    const auto listener =
        boost::make_shared<FocusChangedFunction>([&](UI_Node*, FocusChangeReason) { ++calls; });
    a->InstallFocusChangedFunction(listener);
    a->InstallFocusChangedFunction(listener);
    EXPECT_TRUE(a->UI_GainKeyboardFocus(kFocusChangeReason_Mouse));
    EXPECT_EQ(calls, 1);
}

TEST_F(ToolkitCoreTest, UserDataDiesWithTheNodeAndWhenReplaced) {
    auto node = newView("n");
    EXPECT_TRUE(node->GetUserData().empty());
    bool firstFreed = false;
    bool secondFreed = false;
    node->SetUserData(boost::intrusive_ptr<Tracked>(new Tracked(firstFreed)));
    node->SetUserData(boost::intrusive_ptr<Tracked>(new Tracked(secondFreed)));
    EXPECT_TRUE(firstFreed);
    EXPECT_FALSE(secondFreed);
    EXPECT_NO_THROW(boost::any_cast<boost::intrusive_ptr<Tracked>>(node->GetUserData()));
    node.reset();
    EXPECT_TRUE(secondFreed);
}

TEST_F(ToolkitCoreTest, OnlyASizeChangeCallsSizeChangedAndItsListeners) {
    std::vector<std::string> log;
    boost::intrusive_ptr<LoggingNode> node(new LoggingNode(log));
    const auto listener =
        boost::make_shared<SizeChangedNotifyFunction>([&] { log.push_back("hook"); });
    node->UI_InstallSizeChangedNotifyFunction(listener);
    node->UI_InstallSizeChangedNotifyFunction(listener);
    node->UI_SetLocalRectF(RectT<float>(0, 0, 50, 20));
    node->UI_SetLocalRectF(RectT<float>(9, 9, 50, 20));  // a move
    node->UI_SetLocalRectF(RectT<float>(9, 9, 50, 21));
    EXPECT_EQ(log,
              (std::vector<std::string>{"size virtual 50", "hook", "size virtual 50", "hook"}));
    EXPECT_EQ(node->UI_GetLocalRectF(false), RectT<float>(9, 9, 50, 21));
    EXPECT_EQ(node->UI_GetRecommendedSize(nullptr), PointT<float>(50, 21));
}

TEST_F(ToolkitCoreTest, AHookThatDrewSkipsTheChildrenAndHiddenNodesAreNotDrawn) {
    std::vector<std::string> log;
    boost::intrusive_ptr<LoggingNode> root(new LoggingNode(log));
    root->UI_SetNodeID("root");
    for (const char* id : {"one", "two", "three"}) {
        boost::intrusive_ptr<LoggingNode> child(new LoggingNode(log));
        child->UI_SetNodeID(id);
        root->ChildPushBack(child);
    }
    boost::intrusive_ptr<LoggingNode> grandchild(new LoggingNode(log));
    grandchild->UI_SetNodeID("four");
    root->ChildGet(2)->ChildPushBack(grandchild);
    root->ChildGet(1)->UI_Show(false);
    root->ChildGet(2)->UI_SetCustomDrawFunction(
        boost::make_shared<CustomDrawFunction>([&](const UI_Node* node, zebui::inkwell::Inkwell*) {
            log.push_back(node->UI_GetNodeID() + " hook");
            return true;
        }));
    root->DeliverDraw(nullptr);
    // The override logs before its base runs the hook; the hook drew, so "four" is not.
    EXPECT_EQ(log, (std::vector<std::string>{"root draw", "one draw", "three draw", "three hook"}));
    log.clear();
    root->ChildGet(2)->UI_UpdateNow(~0u);  // draws at once, reaching the hook
    EXPECT_EQ(log, (std::vector<std::string>{"three draw", "three hook"}));
    log.clear();
    root->ChildGet(1)->UI_UpdateNow(~0u);
    EXPECT_TRUE(log.empty()) << "a hidden node is not drawn";
}

TEST_F(ToolkitCoreTest, InvalidationsAndUpdatesAreRecordedUntilCleared) {
    auto node = newView("n");
    const RectT<int> part(1, 2, 3, 4);
    node->UI_Invalidate(&part, 0);
    EXPECT_EQ(node->GetRedrawRecord().rects, std::vector<RectT<int>>{part});
    EXPECT_FALSE(node->GetRedrawRecord().wholeNode);
    node->UI_Invalidate(nullptr, 5);
    node->UI_UpdateNow(~0u);
    const auto& record = node->GetRedrawRecord();
    EXPECT_EQ(record.invalidateCount, 2u);
    EXPECT_TRUE(record.wholeNode);
    EXPECT_TRUE(record.rects.empty());
    EXPECT_EQ(record.invalidateFlags.GetValue(), 5u);
    EXPECT_EQ(record.updateNowCount, 1u);
    EXPECT_EQ(record.updateNowFlags.GetValue(), ~0u);
    node->ClearRedrawRecord();
    for (size_t i = 0; i <= UI_Node::kMaxRecordedInvalidRects; ++i)
        node->UI_Invalidate(&part, 0);
    EXPECT_TRUE(node->GetRedrawRecord().wholeNode) << "too many rects count as all of the node";
}

TEST_F(ToolkitCoreTest, NonOptionalDynamicCastThrowsTheLocalizedConversionError) {
    using zebcore::utility::NonOptionalDynamicCast;
    boost::intrusive_ptr<UI_Node> control(new UI_InteractiveControlView);
    auto plain = newView("plain");
    EXPECT_EQ((NonOptionalDynamicCast<UI_Node*, UI_InteractiveControlView*>(
                  control.get(), zebcore::utility::kInvalidTypeConversion, 105, 21)),
              control.get());
    for (UI_Node* wrong : {static_cast<UI_Node*>(plain.get()), static_cast<UI_Node*>(nullptr)}) {
        debug::ClearRecordedAssertReports();
        try {
            NonOptionalDynamicCast<UI_Node*, UI_InteractiveControlView*>(
                wrong, zebcore::utility::kInvalidTypeConversion, 105, 21);
            ADD_FAILURE() << "no exception";
        } catch (const zebcore::config::ZebException& error) {
            EXPECT_STREQ(error.what(), "Invalid type conversion.");
            EXPECT_EQ(error.GetKey(), zebcore::utility::kInvalidTypeConversion);
            EXPECT_EQ(error.GetLevel(), 1);
            EXPECT_EQ(error.GetDomain(), 105);
            EXPECT_EQ(error.GetCode(), 21);
        }
        ASSERT_EQ(debug::RecordedAssertReports().size(), 1u);
        EXPECT_EQ(debug::RecordedAssertReports()[0].message, "Invalid type conversion.");
    }
    try {
        zebcore::config::ThrowError(2, "$$$/test/Missing=^1 is missing from ^2 (^3)", 1, 2, false,
                                    zebcore::config::ReplacementValue(std::string("Knob")),
                                    zebcore::config::ReplacementValue(7L));
    } catch (const zebcore::config::ZebException& error) {
        EXPECT_STREQ(error.what(), "Knob is missing from 7 (^3)");
    }
}

// Listens to a control's messages through member functions of the specific types.
struct ControlListener {
    std::vector<int> phases;
    int changes = 0;
    UI_Node* lastControl = nullptr;
    void OnChanged(zebui::controls::UI_ControlChangedMessage* message) {
        ++changes;
        lastControl = message->GetControl();
    }
    void OnInteractive(zebui::controls::UI_InteractiveControlChangedMessage* message) {
        phases.push_back(message->GetChangeMessage() * 10 + message->GetModifiers().GetValue());
    }
};

TEST_F(ToolkitCoreTest, ControlsSendTypedMessagesToTheirListenersInPhaseOrder) {
    boost::intrusive_ptr<UI_InteractiveControlView> control(new UI_InteractiveControlView);
    ControlListener listener;
    control->NotifyWhenChanged(BindMessageFunction(&listener, &ControlListener::OnChanged));
    control->NotifyWhenChangedInteractively(
        BindMessageFunction(&listener, &ControlListener::OnInteractive));

    control->SendValueChangedMessage();
    control->BeginInteractiveChange();
    EXPECT_TRUE(control->IsInInteractiveChange());
    control->ContinueInteractiveChange(kModifierKey_Shift);
    control->FinishInteractiveChange();
    control->CancelInteractiveChange();
    EXPECT_FALSE(control->IsInInteractiveChange());
    EXPECT_EQ(listener.changes, 1);
    EXPECT_EQ(listener.lastControl, control.get());
    EXPECT_EQ(listener.phases, (std::vector<int>{0, 11, 20, 30}));

    // A listener of the wrong message type throws the conversion error out of the send.
    control->NotifyWhenChanged(BindMessageFunction(&listener, &ControlListener::OnInteractive));
    EXPECT_THROW(control->SendValueChangedMessage(), zebcore::config::ZebException);

    // A listener may drop the last reference to the control that is sending.
    boost::intrusive_ptr<UI_InteractiveControlView> doomed(new UI_InteractiveControlView);
    doomed->NotifyWhenChanged(
        boost::make_shared<MessageFunction>([&](MessageT<UI_Node>*) { doomed.reset(); }));
    doomed->SendValueChangedMessage();
    EXPECT_EQ(doomed, nullptr);
}

// The modifiers of the pointer event that continues a change reach its phase message.
TEST_F(ToolkitCoreTest, ADragsModifiersReachItsContinuePhase) {
    const boost::intrusive_ptr<zebui::controls::UI_Checkbox> box(new zebui::controls::UI_Checkbox);
    box->UI_SetLocalRectF(RectT<float>(0, 0, 10, 10));
    ControlListener listener;
    box->NotifyWhenChangedInteractively(
        BindMessageFunction(&listener, &ControlListener::OnInteractive));
    const auto press = [](MouseAction action, ModifierFlags modifiers) {
        return MouseEvent(action, kMouseButton_Left, 1, PointT<float>(3, 4), modifiers, OS_Event(),
                          0, 0, 0, 0, kSwipeDirection_None, 0);
    };
    box->UI_DoMouseEvent(box.get(), press(kMouseAction_Down, 0));
    box->UI_DoMouseEvent(box.get(), press(kMouseAction_Drag, kModifierKey_Shift));
    box->UI_DoMouseEvent(box.get(), press(kMouseAction_Up, 0));
    EXPECT_EQ(listener.phases, (std::vector<int>{0, 11, 20}));
}

}  // namespace
