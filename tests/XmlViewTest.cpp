// Views from XML: the node builder's schema and its failures, the binding's factory
// order, the resource and debug folder lookup, and the Lua entry's boundary.
#include <stdexcept>
#include <string>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "vex/app/App.h"
#include "zebcore/config/Localizer.h"
#include "zebcore/debug/Debug.h"
#include "zebcore/filesupport/Dir.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaOverlaySubView.h"
#include "zeblua/ui/src/LuaViewFromXML.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/controls/UI_Knob.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_StaticImage.h"
#include "zebui/controls/UI_StaticText.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_NodeBuilder.h"
#include "zebui/ui/UI_SubView.h"
#include "zebui/utility/ResourceManager.h"

namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;
using zebui::ui::UI_NodeBuilder;
namespace zl = zeblua::ui;
namespace fs = zebcore::filesupport;

NodeP buildText(const std::string& xml, UI_NodeBuilder::NodeMap& nodes,
                UI_NodeBuilder::NodeFactory factory = UI_NodeBuilder::NodeFactory()) {
    const boost::intrusive_ptr<UI_NodeBuilder> builder(new UI_NodeBuilder(xml));
    return builder->Build(nullptr, nodes, factory);
}

size_t reportCount() {
    return zebcore::debug::RecordedAssertReports().size();
}

std::string lastReport() {
    const auto& reports = zebcore::debug::RecordedAssertReports();
    return reports.empty() ? std::string() : reports.back().message;
}

class XmlViewTest : public ::testing::Test {
protected:
    void SetUp() override { zebcore::debug::ClearRecordedAssertReports(); }
};

TEST_F(XmlViewTest, BuildsTheFrameIdsAndChildrenInDocumentOrder) {
    UI_NodeBuilder::NodeMap nodes;
    const NodeP root = buildText(R"(<UI_SubView id="root" left="5" top="6" width="70" height="80">
          <UI_Checkbox id="a" left="1.5" top="2" width="30" height="10"/>
          <!-- a comment is no node -->
          <UI_StaticText id="b" shown="false"/>
          <UI_SubView><UI_Knob id="deep" width="9"/></UI_SubView>
        </UI_SubView>)",
                                 nodes);
    ASSERT_TRUE(root);
    const zebcore::geom::RectT<float> frame = root->UI_GetLocalRectF(false);
    EXPECT_EQ(frame.left, 5);
    EXPECT_EQ(frame.top, 6);
    EXPECT_EQ(frame.width, 70);
    EXPECT_EQ(frame.height, 80);
    ASSERT_EQ(root->ChildSize(), 3u);
    EXPECT_EQ(root->ChildGet(0)->UI_GetNodeID(), "a");
    EXPECT_EQ(root->ChildGet(0)->UI_GetLocalRectF(false).left, 1.5f);
    EXPECT_TRUE(dynamic_cast<zebui::controls::UI_Checkbox*>(root->ChildGet(0).get()));
    EXPECT_FALSE(root->ChildGet(1)->UI_IsShown());
    EXPECT_TRUE(root->ChildGet(0)->UI_IsShown());
    EXPECT_EQ(root->ChildGet(2)->UI_GetNodeID(), "") << "a node without an id has none";
    ASSERT_EQ(nodes.size(), 4u) << "only named nodes are in the map";
    EXPECT_EQ(nodes.at("root"), root.get());
    EXPECT_EQ(nodes.at("deep"), root->ChildGet(2)->ChildGet(0).get());
    EXPECT_EQ(nodes.at("deep")->UI_GetLocalRectF(false).width, 9);
    EXPECT_EQ(reportCount(), 0u);
}

TEST_F(XmlViewTest, TextThatBuildsNothingGivesNoRoot) {
    struct Case {
        const char* xml;
        size_t reports;
        const char* says;
    };
    const Case cases[] = {
        {"", 0, ""},
        {"<!-- only a comment -->", 0, ""},
        {"<UI_SubView><UI_Checkbox></UI_SubView>", 1, "malformed"},
        {"\xff\xfe<", 1, "malformed"},
        {"<NoSuchClass id=\"x\"/>", 1, "NoSuchClass"},
    };
    for (const Case& row : cases) {
        zebcore::debug::ClearRecordedAssertReports();
        UI_NodeBuilder::NodeMap nodes;
        EXPECT_FALSE(buildText(row.xml, nodes)) << row.xml;
        EXPECT_TRUE(nodes.empty()) << row.xml;
        EXPECT_EQ(reportCount(), row.reports) << row.xml;
        EXPECT_NE(lastReport().find(row.says), std::string::npos)
            << row.xml << ": " << lastReport();
    }
}

TEST_F(XmlViewTest, BadAttributesAreReportedAndKeepTheDefault) {
    UI_NodeBuilder::NodeMap nodes;
    const NodeP root = buildText(
        R"(<UI_SubView left="ten" top="3px" width="inf" height="12" shown="maybe"/>)", nodes);
    ASSERT_TRUE(root);
    const zebcore::geom::RectT<float> frame = root->UI_GetLocalRectF(false);
    EXPECT_EQ(frame.left, 0);
    EXPECT_EQ(frame.top, 0);
    EXPECT_EQ(frame.width, 0);
    EXPECT_EQ(frame.height, 12);
    EXPECT_TRUE(root->UI_IsShown());
    EXPECT_EQ(reportCount(), 4u);
    EXPECT_NE(lastReport().find("'shown'"), std::string::npos) << lastReport();
}

TEST_F(XmlViewTest, ElementsDeeperThanViewsNestAreSkipped) {
    std::string xml;
    for (int depth = 1; depth <= UI_NodeBuilder::kDeepestNesting + 5; ++depth)
        xml += "<UI_SubView id=\"" + std::to_string(depth) + "\">";
    for (int depth = 1; depth <= UI_NodeBuilder::kDeepestNesting + 5; ++depth)
        xml += "</UI_SubView>";
    UI_NodeBuilder::NodeMap nodes;
    const NodeP root = buildText(xml, nodes);
    ASSERT_TRUE(root);
    EXPECT_EQ(nodes.size(), size_t(UI_NodeBuilder::kDeepestNesting));
    EXPECT_EQ(nodes.count(std::to_string(UI_NodeBuilder::kDeepestNesting)), 1u);
    EXPECT_EQ(nodes.at(std::to_string(UI_NodeBuilder::kDeepestNesting))->ChildSize(), 0u);
    EXPECT_EQ(reportCount(), 1u) << "one report for the skipped subtree";
    EXPECT_NE(lastReport().find("deeper"), std::string::npos) << lastReport();
}

TEST_F(XmlViewTest, UnknownClassesGoToTheFactoryOrAreSkippedWithTheirChildren) {
    UI_NodeBuilder::NodeMap nodes;
    std::u16string asked;
    const NodeP root = buildText(
        R"(<UI_SubView><Mine id="m"/><Nobody id="n"><UI_Checkbox id="c"/></Nobody><UI_Knob/></UI_SubView>)",
        nodes, [&](const zebcore::UTF16String& name) {
            asked += name + u";";
            return name == u"Mine" ? NodeP(new zebui::ui::UI_SubView()) : NodeP();
        });
    ASSERT_TRUE(root);
    EXPECT_EQ(asked, u"Mine;Nobody;") << "the builder's own classes never reach the factory";
    EXPECT_EQ(root->ChildSize(), 2u);
    EXPECT_EQ(nodes.count("m"), 1u);
    EXPECT_EQ(nodes.count("n"), 0u);
    EXPECT_EQ(nodes.count("c"), 0u) << "a skipped element's children are not built";
    EXPECT_EQ(reportCount(), 1u);
    EXPECT_NE(lastReport().find("'Nobody'"), std::string::npos);
}

TEST_F(XmlViewTest, TheBindingsFourNamesComeFirstThenInstalledFactoriesOldestFirst) {
    // The factories stay installed for the process, so what they touch lives as long.
    static int askedForImage = 0;
    zl::InstallNodeFactoryFxn([](const zebcore::UTF16String& name) {
        if (name == u"LuaStaticImage") ++askedForImage;
        return name == u"XmlTestShared" ? NodeP(new zebui::controls::UI_Checkbox()) : NodeP();
    });
    zl::InstallNodeFactoryFxn([](const zebcore::UTF16String& name) {
        return name == u"XmlTestShared" || name == u"XmlTestSecond"
                   ? NodeP(new zebui::controls::UI_Knob())
                   : NodeP();
    });
    const NodeP image = zl::LuaControlFactoryFunction(u"LuaStaticImage");
    const auto* staticImage = dynamic_cast<zebui::controls::UI_StaticImage*>(image.get());
    ASSERT_TRUE(staticImage);
    EXPECT_TRUE(staticImage->GetImageSupplyFunction()) << "images come from the provider";
    EXPECT_EQ(askedForImage, 0) << "an installed factory never sees the four names";
    const NodeP button = zl::LuaControlFactoryFunction(u"LuaPictureButton");
    const auto* picture = dynamic_cast<zebui::controls::UI_PictureButton*>(button.get());
    ASSERT_TRUE(picture);
    EXPECT_TRUE(picture->GetImageSupplyFunction());
    EXPECT_TRUE(dynamic_cast<zl::LuaOverlaySubView*>(
        zl::LuaControlFactoryFunction(u"LuaOverlaySubView").get()));
    EXPECT_TRUE(dynamic_cast<zl::LuaMultiColumnTree*>(
        zl::LuaControlFactoryFunction(u"LuaMultiColumnTree").get()));
    EXPECT_TRUE(dynamic_cast<zebui::controls::UI_Checkbox*>(
        zl::LuaControlFactoryFunction(u"XmlTestShared").get()))
        << "the first installed wins";
    EXPECT_TRUE(dynamic_cast<zebui::controls::UI_Knob*>(
        zl::LuaControlFactoryFunction(u"XmlTestSecond").get()));
    EXPECT_FALSE(zl::LuaControlFactoryFunction(u"luastaticimage")) << "names match exactly";
    EXPECT_FALSE(zl::LuaControlFactoryFunction(u"UI_Checkbox"))
        << "the toolkit's own classes are the builder's, not the factory's";
    EXPECT_EQ(askedForImage, 0);
}

TEST_F(XmlViewTest, DebugFoldersAreKeptByKeyAndReplaced) {
    EXPECT_EQ(zl::GetDebugXMLResFolder("xml-test-key"), nullptr);
    zl::SetDebugXMLResFolder("xml-test-key", fs::Dir(u"/first"));
    zl::SetDebugXMLResFolder("xml-test-key", fs::Dir(u"/second"));
    ASSERT_NE(zl::GetDebugXMLResFolder("xml-test-key"), nullptr);
    EXPECT_EQ(zl::GetDebugXMLResFolder("xml-test-key")->FullPath(), u"/second");
    EXPECT_STREQ(zl::kAppResources, "app_resources");
}

// The fixture views as the application's resources, for the length of a test.
class XmlResourceTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        resources()->AddFolder(mFolder);
        runLua("require 'zeblua.zebcontrols'");
    }
    void TearDown() override {
        resources()->RemoveFolder(mFolder);
        zebcore::config::Localizer::Get()->SetLanguage("en");
        LuaTest::TearDown();
    }
    static zebui::utility::ResourceManager* resources() {
        return vex::app::App::GetApp()->GetAppResourceManager();
    }
    const fs::Dir mFolder{zebcore::utility::UTF8to16(ZEBLUA_TEST_FIXTURES "/views")};
};

TEST_F(XmlResourceTest, NativeLoadsFillTheMap) {
    zl::XMLNodeMap nodes;
    const NodeP root = zl::LoadViewFromXML(u"panel", nodes, &zl::LuaControlFactoryFunction);
    ASSERT_TRUE(root);
    EXPECT_EQ(nodes.at("panel"), root.get());
    EXPECT_TRUE(dynamic_cast<zebui::controls::UI_StaticImage*>(nodes.at("image")));
    zl::XMLNodeMap none;
    EXPECT_FALSE(zl::LoadViewFromXML(u"no-such-view", none, &zl::LuaControlFactoryFunction));
    EXPECT_TRUE(none.empty());
}

TEST_F(XmlResourceTest, AFactoryThatThrowsBecomesTheScriptsError) {
    zl::InstallNodeFactoryFxn([](const zebcore::UTF16String& name) -> NodeP {
        if (name == u"XmlTestThrows") throw std::runtime_error("factory gave up");
        return nullptr;
    });
    const std::string message = luaError("zebcontrols.LoadControlsFromXml('throwing')");
    EXPECT_NE(message.find("LoadControlsFromXml: factory gave up"), std::string::npos) << message;
    EXPECT_EQ(lua_gettop(L), 0);
    EXPECT_EQ(luaValue("zebcontrols.LoadControlsFromXml('greeting'):UI_GetNodeID()"), "english");
}

}  // namespace
