// The tree's rows in a drag from the native side: the bytes a drag carries resolve only
// against live rows of the tree that made them, however they are cut or changed, and the
// drop function's answers reach the toolkit's record as the script gives them.
#include <string>
#include <vector>

#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRow.h"
#include "zebui/controls/UI_MultiColumnTree.h"
#include "zebui/datatransfer/DataTypes.h"
#include "zebui/datatransfer/DragSession.h"
#include "zebui/datatransfer/OS_ReceiveData.h"
#include "zebui/ui/EventLoop.h"

namespace {

namespace zc = zebui::controls;
namespace zdt = zebui::datatransfer;
using zeblua::ui::LuaMultiColumnTree;
using Support = zc::UI_MultiColumnTreeDragSupport;

class MultiColumnTreeDragTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        zebui::ui::EventLoop::Get()->ClearUserAnswers();
        // Two trees of four rows; alpha and beta of the first are selected.
        runLua(R"(
            C = require 'zeblua.zebcontrols'
            require 'zeblua.datatransfer.OSSendData'
            function makeTree()
                local t = C.NewMultiColumnTree()
                t:UI_SetLocalRectF(zeblua_CreateNewRectF32(0, 0, 200, 100))
                t:SetSupportMultipleSelections(true)
                for _, id in ipairs({ 'alpha', 'beta', 'gamma', 'delta' }) do
                    t:CreateAndAppendRow(nil, false, id)
                end
                t:LayoutAfterAppendRow()
                return t
            end
            w, other = makeTree(), makeTree()
            w:SelectRows({ w:GetRow(0), w:GetRow(1) }, false, false)
        )");
    }
    void TearDown() override {
        zebui::ui::EventLoop::Get()->ClearUserAnswers();
        LuaTest::TearDown();
    }

    // Drags w's selection from beta onto gamma of target and answers the bytes it carried.
    std::vector<unsigned char> dragSelection(const char* target) {
        std::vector<unsigned char> carried;
        const auto dropTree = nodeOf<LuaMultiColumnTree>(target);
        dropTree->SetDropSupportCallback(
            boost::make_shared<Support::DropSupportCallback::element_type>(
                [&](Support::DropAction action, Support::DropSupportData* data) {
                    if (action == Support::kDropAction_Drop && data)
                        data->data->GetRawData(dropTree->GetRowsDraggedDataType(), carried);
                    if (data) {
                        data->valid = true;
                        *data->dropEffect = zdt::kDropEffectCopy;
                    }
                    return true;
                }));
        zdt::QueueDropGesture(dropTree.get(), zebcore::geom::PointT<float>(40, 45), 0);
        runLua(R"(
            w:SetAllowRowDragging(true)
            w:BindZebOperation('mctSelectedRowsBeingDragged', function() return true end)
            local function send(action, y)
                zebhost.sendMouse(w, zeblua_CreateNewZEBUIMouseEvent(action,
                    zebhost.buttons.kLeft, 1, 40, y, zebhost.modifiers.kShift, 0, 0))
            end
            send(zebhost.mouse.kDown, 27)  -- beta, already selected: shift takes it out...
            send(zebhost.mouse.kUp, 27)
            send(zebhost.mouse.kDown, 27)  -- ...and puts it back, pressed
            send(zebhost.mouse.kDrag, 40)
            send(zebhost.mouse.kUp, 40)
        )");
        return carried;
    }

    std::vector<std::string> rowIds(const char* name, const std::vector<unsigned char>& bytes) {
        std::vector<zc::UI_MultiColumnTreeRow*> rows;
        nodeOf<LuaMultiColumnTree>(name)->GetRowsBeingDragged(bytes, rows);
        std::vector<std::string> ids;
        for (zc::UI_MultiColumnTreeRow* row : rows)
            ids.push_back(static_cast<zeblua::ui::LuaMultiColumnTreeRow*>(row)->GetID());
        return ids;
    }
};

TEST_F(MultiColumnTreeDragTest, DraggedRowsResolveAgainstTheLiveRowsOfTheirOwnTreeOnly) {
    const std::vector<unsigned char> bytes = dragSelection("w");
    ASSERT_FALSE(bytes.empty()) << "the drop saw the rows' bytes";
    EXPECT_EQ(zdt::GetLastDrag().effect, zdt::kDropEffectCopy);
    EXPECT_EQ(rowIds("w", bytes), (std::vector<std::string>{"alpha", "beta"}));
    EXPECT_TRUE(rowIds("other", bytes).empty()) << "another tree reads none of them";

    // Every cut of the bytes gives a prefix of the rows, never a crash or a stranger.
    for (size_t length = 0; length < bytes.size(); ++length) {
        const std::vector<unsigned char> cut(bytes.begin(), bytes.begin() + length);
        const std::vector<std::string> ids = rowIds("w", cut);
        EXPECT_LE(ids.size(), 1u) << "a cut at " << length;
        if (!ids.empty()) {
            EXPECT_EQ(ids[0], "alpha");
        }
    }
    // A changed token names no live row.
    std::vector<unsigned char> changed = bytes;
    changed.back() ^= 0x5A;
    EXPECT_EQ(rowIds("w", changed), (std::vector<std::string>{"alpha"}));

    // A row removed after the drag is left out; the others still resolve.
    runLua("removed = w:GetRow(0); w:RemoveRow(removed)");
    EXPECT_EQ(rowIds("w", bytes), (std::vector<std::string>{"beta"}));
    runLua("removed = nil; collectgarbage()");
    EXPECT_EQ(rowIds("w", bytes), (std::vector<std::string>{"beta"}));
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());
}

TEST_F(MultiColumnTreeDragTest, ADropOntoAnotherTreeCarriesRowsItCannotRead) {
    const std::vector<unsigned char> bytes = dragSelection("other");
    ASSERT_FALSE(bytes.empty());
    EXPECT_EQ(zdt::GetLastDrag().effect, zdt::kDropEffectCopy);
    EXPECT_TRUE(rowIds("other", bytes).empty());
    EXPECT_EQ(rowIds("w", bytes).size(), 2u);
}

// The drop function's answers against the record the toolkit hands it.
struct DropRow {
    const char* function;
    bool valid;  // as the toolkit set it before the call
    int effect;  // likewise
    bool answer;
    bool validAfter;
    int effectAfter;
};

TEST_F(MultiColumnTreeDragTest, TheDropFunctionsAnswersReachTheToolkitsRecord) {
    const DropRow rows[] = {
        {"return true, { dropEffect = 4 }", true, 1, true, false, 4},
        {"return true, { isDropValid = 1, dropEffect = '4' }", false, 0, true, true, 4},
        {"error('no')", true, 8, false, true, 8},
        {"return nil, 'not a table'", true, 8, false, true, 8},
        {"return true, setmetatable({}, { __index = function() error('read') end })", true, 8, true,
         true, 8},
    };
    const auto w = nodeOf<LuaMultiColumnTree>("w");
    zdt::OS_ReceiveData received;
    for (const DropRow& row : rows) {
        runLua(std::string("w:BindZebOperation('mctDropSupport', function() ") + row.function +
               " end)");
        int effect = row.effect;
        zc::UI_MultiColumnTreeRow* over = w->GetRow(2).get();
        Support::DropSupportData data{{1, 2}, &received, &effect, over, 0, row.valid};
        // The installed callback, as the toolkit calls it.
        const Support::DropSupportCallback callback = w->GetDropSupportCallback();
        ASSERT_TRUE(callback && *callback);
        const bool answer = (*callback)(Support::kDropAction_Drop, &data);
        EXPECT_EQ(answer, row.answer) << row.function;
        EXPECT_EQ(data.valid, row.validAfter) << row.function;
        EXPECT_EQ(effect, row.effectAfter) << row.function;
    }
    EXPECT_EQ(lua_gettop(L), 0) << "the stack is left as found";
}

}  // namespace
