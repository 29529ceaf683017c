// The data transfer modules from the native side: who owns receive data, send objects
// that end during their own drag, drop targets in the drag loop, exceptions at the edge.
#include <stdexcept>
#include <string>

#include <boost/intrusive_ptr.hpp>
#include <gmock/gmock.h>
#include <lua.hpp>

#include "os/CurrentEvent.h"
#include "tests/LuaTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/datatransfer/LuaOSReceiveData.h"
#include "zeblua/ui/src/ControlWrapperPush.h"
#include "zebui/datatransfer/Clipboard.h"
#include "zebui/datatransfer/DataTypes.h"
#include "zebui/datatransfer/DragSession.h"
#include "zebui/datatransfer/OS_ReceiveData.h"
#include "zebui/datatransfer/OS_SendData.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/UI_SubView.h"

namespace {

namespace zdt = zebui::datatransfer;
using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zebui::ui::UI_Node;
using zebui::ui::UI_SubView;

// Receive data that counts its deletions and can throw from its readers.
class CountedReceiveData : public zdt::OS_ReceiveData {
public:
    explicit CountedReceiveData(int& deletions, bool throws = false)
        : mDeletions(deletions), mThrows(throws) {}
    ~CountedReceiveData() override { ++mDeletions; }
    bool GetAsString(const zebcore::UTF16String& type, zebcore::UTF16String& text) override {
        if (mThrows) throw std::runtime_error("the pasteboard went away");
        return OS_ReceiveData::GetAsString(type, text);
    }

private:
    int& mDeletions;
    bool mThrows;
};

// A view that takes drops the way a toolkit control hands them to a script: each step
// calls the global Lua function onDrag(step, x, y, data) with a proxy that is emptied
// when the call returns, and answers the number it returns.
class ScriptDropTarget : public UI_SubView, public zdt::DropTarget {
public:
    explicit ScriptDropTarget(lua_State* L) : mL(L) {}

    int DragEntered(const PointT<float>& where, zdt::OS_ReceiveDataBase& data, int) override {
        return call("enter", where, data);
    }
    int DraggedOver(const PointT<float>& where, zdt::OS_ReceiveDataBase& data, int) override {
        return call("over", where, data);
    }
    void DragLeft(zdt::OS_ReceiveDataBase& data) override { call("leave", PointT<float>(), data); }
    int Dropped(const PointT<float>& where, zdt::OS_ReceiveDataBase& data, int) override {
        return call("drop", where, data);
    }

private:
    int call(const char* step, const PointT<float>& where, zdt::OS_ReceiveDataBase& data) {
        const int top = lua_gettop(mL);
        lua_getglobal(mL, "onDrag");
        lua_pushstring(mL, step);
        lua_pushnumber(mL, where.x);
        lua_pushnumber(mL, where.y);
        zeblua::datatransfer::OSReceiveDataProxy* proxy = nullptr;
        zeblua::datatransfer::PushReceiveDataToLua(mL, &data, &proxy);
        const int status = lua_pcall(mL, 4, 1, 0);
        zeblua::datatransfer::ReleaseReceiveData(proxy);
        const int answer = status == 0 ? static_cast<int>(lua_tointeger(mL, -1)) : 0;
        lua_settop(mL, top);
        return answer;
    }

    lua_State* mL;
};

class DataTransferTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        runLua("require 'zeblua.datatransfer.OSDataTransfer'; require "
               "'zeblua.datatransfer.OSSendData';"
               "require 'zeblua.datatransfer.OSReceiveData'");
        zebui::ui::EventLoop::Get()->ClearUserAnswers();
    }
    void TearDown() override {
        zebui::ui::EventLoop::Get()->ClearUserAnswers();
        LuaTest::TearDown();
    }

    // root (0, 0, 200, 100) holding target at (100, 0, 100, 100); both as Lua globals.
    void makeDropTree() {
        mRoot = new UI_SubView;
        mRoot->UI_SetLocalRectF(RectT<float>(0, 0, 200, 100));
        mTarget = new ScriptDropTarget(L);
        mTarget->UI_SetNodeID("target");
        mTarget->UI_SetLocalRectF(RectT<float>(100, 0, 100, 100));
        mRoot->ChildPushBack(mTarget);
        zeblua::ui::PrepareWrapperPush(L);
        ASSERT_TRUE(zeblua::ui::FinishWrapperPush(L, mRoot));
        lua_setglobal(L, "root");
    }

    boost::intrusive_ptr<UI_Node> mRoot;
    boost::intrusive_ptr<ScriptDropTarget> mTarget;
};

TEST_F(DataTransferTest, AnOwningProxyDeletesItsDataOnceAndAnEmptiedOneNever) {
    int deletions = 0;
    zeblua::datatransfer::PushReceiveDataToLua(L, new CountedReceiveData(deletions), nullptr);
    lua_setglobal(L, "owning");
    runLua("owning.__gc(owning); owning.__gc(owning)");
    EXPECT_EQ(deletions, 1) << "__gc deletes owned data once";
    EXPECT_EQ(luaValue("owning"), "OSReceiveData((nil))") << "and prints the null pointer after";

    CountedReceiveData lent(deletions);
    zeblua::datatransfer::OSReceiveDataProxy* proxy = nullptr;
    zeblua::datatransfer::PushReceiveDataToLua(L, &lent, &proxy);
    ASSERT_NE(proxy, nullptr);
    EXPECT_TRUE(proxy->owned) << "a pushed proxy owns its data until its pusher says otherwise";
    lua_setglobal(L, "kept");
    zeblua::datatransfer::ReleaseReceiveData(proxy);
    EXPECT_EQ(resultCount("kept:DataAvailable()"), 0) << "an emptied proxy reads no argument";
    EXPECT_EQ(resultCount("kept:GetAsFiles()"), 0);
    EXPECT_EQ(resultCount("kept:GetAsString(5)"), 0);
    runLua("kept = nil");
    collectGarbage();
    EXPECT_EQ(deletions, 1) << "emptied data is never deleted by the proxy";
}

TEST_F(DataTransferTest, AnExceptionFromTheDataIsALuaErrorAndTheProxyStaysUsable) {
    int deletions = 0;
    zeblua::datatransfer::PushReceiveDataToLua(L, new CountedReceiveData(deletions, true), nullptr);
    lua_setglobal(L, "throwing");
    EXPECT_THAT(luaError("throwing:GetAsString('x')"),
                ::testing::HasSubstr("GetAsString: the pasteboard went away"));
    EXPECT_EQ(luaValue("throwing:DataAvailable('x')"), "false") << "still usable";
    runLua("throwing = nil");
    collectGarbage();
    EXPECT_EQ(deletions, 1);
}

TEST_F(DataTransferTest, ADropTargetAnswersTheDragAndSeesItsDataOnlyDuringTheCall) {
    makeDropTree();
    runLua(R"(
        steps, kept = {}, nil
        function onDrag(step, x, y, data)
            steps[#steps + 1] = step .. "@" .. x .. "," .. y .. ":" .. tostring(data:GetAsText())
            kept = data
            return OSSendData.DropEffectMove
        end
        send = OSSendData.NewSendData()
        send:PutText("über")
        zebhost.dropOn(root, 150, 40)
        effect = send:DoDragAndDrop(OSSendData.DropEffectCopy + OSSendData.DropEffectMove)
    )");
    EXPECT_EQ(luaValue("effect"), "4") << "the target's effect, which the drag allows";
    EXPECT_EQ(luaValue("table.concat(steps, ' ')"),
              "enter@50,40:über over@50,40:über drop@50,40:über")
        << "the target's own coordinates, enter and over before the drop";
    EXPECT_EQ(resultCount("kept:GetAsText()"), 0) << "the callback's proxy is empty after it";
    const zdt::DragRecord& drag = zdt::GetLastDrag();
    EXPECT_TRUE(drag.dropped);
    EXPECT_EQ(drag.targetId, "target");
    EXPECT_EQ(drag.depth, 0);

    runLua("zebhost.dropOn(root, 150, 40); effect = send:DoDragAndDrop(OSSendData.DropEffectCopy)");
    EXPECT_EQ(luaValue("effect"), "0") << "an effect the drag does not allow ends it with none";
    runLua("steps = {}; onDrag = function(step) steps[#steps + 1] = step; return 0 end");
    runLua("zebhost.dropOn(root, 150, 40); effect = send:DoDragAndDrop(OSSendData.DropEffectCopy)");
    EXPECT_EQ(luaValue("table.concat(steps, ' ')"), "enter over leave")
        << "a target that refuses the drag over it sees it leave, not drop";
    runLua("zebhost.dropOn(root, 50, 40); effect = send:DoDragAndDrop(OSSendData.DropEffectCopy)");
    EXPECT_EQ(luaValue("effect"), "0") << "a drop where no target is";
    EXPECT_EQ(zdt::GetLastDrag().targetId, "");
    runLua("onDrag = function() error('script failed') end");
    runLua("zebhost.dropOn(root, 150, 40); effect = send:DoDragAndDrop(OSSendData.DropEffectCopy)");
    EXPECT_EQ(luaValue("effect"), "0") << "a failing target takes nothing";
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());
}

TEST_F(DataTransferTest, ASendObjectReleasedDuringItsOwnDragGoesWhenTheDragEnds) {
    makeDropTree();
    // Under the sanitizers, a send object freed under its drag is a use after free when
    // the drag ends, and one never freed is a leak.
    runLua(R"(
        send = OSSendData.NewSendData()
        send:PutText("dragged")
        function onDrag(step, x, y, data)
            if step == "drop" then
                send:Release()
                send:Release()
                collected = tostring(send)
                nested = OSSendData.NewClipboardSendData()
                nested:PutText("inner")
                zebhost.answer(OSSendData.DropEffectCopy)
                innerEffect = nested:DoDragAndDrop(OSSendData.DropEffectCopy)
                nested = nil
                collectgarbage()
            end
            return OSSendData.DropEffectCopy
        end
        zebhost.dropOn(root, 120, 10)
        effect = send:DoDragAndDrop(OSSendData.DropEffectCopy)
        after = select("#", send:PutText("x"))
    )");
    EXPECT_EQ(luaValue("effect"), "1");
    EXPECT_EQ(luaValue("innerEffect"), "1") << "a drag inside a drop callback";
    EXPECT_EQ(luaValue("collected"), "OSSendData((nil))");
    EXPECT_EQ(luaValue("after"), "0");
    EXPECT_EQ(zdt::GetLastDrag().count >= 2, true);
}

TEST_F(DataTransferTest, ADragBelongsToTheNativeEventCurrentWhenItsDataWasMade) {
    runLua(R"(
        plain = OSSendData.NewSendData()
        bound = zebhost.withNativeEvent(OSSendData.NewSendData)
        zebhost.answer(0)
        plain:DoDragAndDrop(1)
        plainEvent = zebhost.lastDrag().hadNativeEvent
        zebhost.answer(0)
        bound:DoDragAndDrop(1)
        boundEvent = zebhost.lastDrag().hadNativeEvent
    )");
    EXPECT_EQ(luaValue("plainEvent"), "false");
    EXPECT_EQ(luaValue("boundEvent"), "true");
    EXPECT_THAT(luaError("zebhost.withNativeEvent(error, 'passed on')"),
                ::testing::HasSubstr("passed on"));
    EXPECT_EQ(os::GetCurrentEvent(), nullptr) << "the event scope ended with the error";
}

TEST_F(DataTransferTest, ADragWithNobodyToAnswerEndsCancelledWithNone) {
    EXPECT_EQ(luaValue("OSSendData.NewClipboardSendData():DoDragAndDrop(15)"), "0");
    EXPECT_TRUE(zdt::GetLastDrag().cancelled);
    ASSERT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u) << "the loop reports it";
    zebcore::debug::ClearRecordedAssertReports();
}

TEST_F(DataTransferTest, ACopiedFinalizerEndsNothingAndRaisesNothing) {
    runLua(R"(
        local fake = newproxy(true)
        getmetatable(fake).__gc = getmetatable(OSSendData.NewClipboardSendData()).__gc
        fake = nil
        local fake2 = newproxy(true)
        getmetatable(fake2).__gc = getmetatable(OSReceiveData.NewClipboardReceiveData()).__gc
        fake2 = nil
        collectgarbage()
    )");
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());
}

TEST_F(DataTransferTest, SendDataIsBufferedUntilPutAndPublishingReplacesTheClipboard) {
    zdt::RegisterCustomDataType(u"org.example.raw");
    zdt::OS_SendData send{zebui::ui::OS_Event()};
    send.PutRawData(u"org.example.raw", zdt::DataBytes{0, 1, 2, 255});
    const unsigned long before = zdt::GetClipboardChangeCount();
    EXPECT_FALSE(zdt::NewClipboardReceiveData()->DataAvailable(u"org.example.raw"));
    send.PutOnClipboard();
    EXPECT_EQ(zdt::GetClipboardChangeCount(), before + 1);
    std::vector<unsigned char> bytes;
    zdt::NewClipboardReceiveData()->GetRawData(u"org.example.raw", bytes);
    EXPECT_EQ(bytes, (std::vector<unsigned char>{0, 1, 2, 255})) << "raw bytes, zeros included";
    EXPECT_EQ(luaValue("#OSReceiveData.NewClipboardReceiveData():GetAsString('org.example.raw')"),
              "0")
        << "a text push ends at the first zero";
    EXPECT_EQ(zdt::AllowedDropEffect(2, 15), 0) << "2 is no effect";
    EXPECT_EQ(zdt::AllowedDropEffect(zdt::kDropEffectLink, 15), zdt::kDropEffectLink);
}

}  // namespace
