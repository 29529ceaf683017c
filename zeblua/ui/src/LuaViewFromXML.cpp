// Views from XML.
#include "zeblua/ui/src/LuaViewFromXML.h"

#include <fstream>
#include <vector>

#include <lua.hpp>

#include "vex/app/App.h"
#include "zebcore/filesupport/Dir.h"
#include "zebcore/filesupport/File.h"
#include "zebcore/utility/Locale.h"
#include "zeblua/ui/src/ControlWrapperPush.h"
#include "zeblua/ui/src/ImageProvider.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaOverlaySubView.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_StaticImage.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_NodeBuilder.h"
#include "zebui/utility/ResourceManager.h"
#include "zebworkspace/workspace/Workspace.h"

namespace zeblua {
namespace ui {

const char* const kAppResources = "app_resources";

namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;
namespace fs = zebcore::filesupport;

const zebcore::UTF16String kXMLType = u"xml";

// Both live to the end of the process; the host fills them, nothing here removes an entry.
std::vector<NodeFactoryFxn>& installedNodeFactories() {
    static std::vector<NodeFactoryFxn> sInstalledNodeFactories;
    return sInstalledNodeFactories;
}

std::map<std::string, fs::Dir>& debugXMLResFolders() {
    static std::map<std::string, fs::Dir> sDebugXMLResFolders;
    return sDebugXMLResFolders;
}

template <class Picture> NodeP newSuppliedPicture() {
    Picture* picture = new Picture();
    const NodeP node(picture);
    uit::ImageProvider::InstallImageSupply(*picture);
    return node;
}

// Reads the debug folder's copy of the resource into bytes; false when any step fails
// (no folder, no "xml" sub-folder, no file, a file that won't open), so the application's
// resource is read instead. An opened file answers true even when empty.
bool readDebugFile(const zebcore::UTF16String& resourceName, std::vector<unsigned char>& bytes) {
    const fs::Dir* folder = GetDebugXMLResFolder(kAppResources);
    if (!folder) return false;
    const fs::Dir xmlFolder(*folder, kXMLType);
    if (!xmlFolder.Exists()) return false;
    const fs::File file(xmlFolder, resourceName + u".xml");
    if (!file.Exists()) return false;
    std::ifstream stream(zebcore::utility::UTF16to8(file.FullPath()), std::ios::binary);
    if (!stream.is_open()) return false;
    stream.seekg(0, std::ios::end);
    const std::streamoff size = stream.tellg();
    stream.seekg(0, std::ios::beg);
    bytes.resize(size > 0 ? static_cast<size_t>(size) : 0);
    if (!bytes.empty()) stream.read(reinterpret_cast<char*>(bytes.data()), size);
    return true;
}

// The root's wrapper, or no result: the node map and the root are gone before anything
// is raised.
int loadAndPush(lua_State* L, const zebcore::UTF16String& name) {
    XMLNodeMap nodes;
    const NodeP root = LoadViewFromXML(name, nodes, NodeFactoryFxn(&LuaControlFactoryFunction));
    if (!root) return 0;
    return FinishWrapperPush(L, root) ? 1 : -1;
}

}  // namespace

int LoadControlsFromXML(lua_State* L) {
    size_t length = 0;
    const char* name = luaL_checklstring(L, 1, &length);
    PrepareWrapperPush(L);
    const int results = utility::RunNative(L, "LoadControlsFromXml", [&] {
        return loadAndPush(L, zebcore::utility::UTF8to16(zebcore::UTF8String(name, length)));
    });
    return results >= 0 ? results : lua_error(L);
}

boost::intrusive_ptr<zebui::ui::UI_Node>
LoadViewFromXML(const zebcore::UTF16String& name, XMLNodeMap& nodes, NodeFactoryFxn factory) {
    boost::intrusive_ptr<zebui::ui::UI_NodeBuilder> builder = GetNodeBuilderFromResource(name);
    const vex::app::App* app = vex::app::App::GetApp();
    const zebui::inkwell::SupplierInterface* supplier =
        app ? app->GetWorkspace()->GetSupplier() : nullptr;
    const NodeP root = builder->Build(supplier, nodes, factory);
    builder.reset();
    // An empty or malformed text builds nothing; the script gets no result for it.
    if (!root) return nullptr;
    zebcore::geom::RectT<float> frame = root->UI_GetLocalRectF(true);
    frame.left = 0;
    frame.top = 0;
    root->UI_SetLocalRectF(frame);
    root->UI_Show(true);
    return root;
}

boost::intrusive_ptr<zebui::ui::UI_NodeBuilder>
GetNodeBuilderFromResource(const zebcore::UTF16String& name) {
    const zebui::utility::ResourceManager* resources =
        vex::app::App::GetApp() ? vex::app::App::GetApp()->GetAppResourceManager() : nullptr;
    zebcore::UTF16String resourceName = name;
    const zebcore::UTF16String candidate = name + u"-" + zebcore::Locale::ApplicationLangauge();
    if (resources && resources->ResourceExists(candidate, kXMLType)) resourceName = candidate;
    std::vector<unsigned char> bytes;
    if (!readDebugFile(resourceName, bytes) && resources)
        resources->LoadResourceBytes(resourceName, kXMLType, bytes);
    const zebcore::UTF8String text(bytes.begin(), bytes.end());
    return boost::intrusive_ptr<zebui::ui::UI_NodeBuilder>(new zebui::ui::UI_NodeBuilder(text));
}

boost::intrusive_ptr<zebui::ui::UI_Node>
LuaControlFactoryFunction(const zebcore::UTF16String& className) {
    if (className == u"LuaMultiColumnTree") return NodeP(new LuaMultiColumnTree());
    if (className == u"LuaPictureButton")
        return newSuppliedPicture<zebui::controls::UI_PictureButton>();
    if (className == u"LuaStaticImage")
        return newSuppliedPicture<zebui::controls::UI_StaticImage>();
    if (className == u"LuaOverlaySubView") return NodeP(new LuaOverlaySubView());
    for (const NodeFactoryFxn& factory : installedNodeFactories())
        if (NodeP node = factory(className)) return node;
    return nullptr;
}

void InstallNodeFactoryFxn(NodeFactoryFxn factory) {
    installedNodeFactories().push_back(factory);
}

void SetDebugXMLResFolder(const char* key, const fs::Dir& folder) {
    debugXMLResFolders()[key] = folder;
}

const fs::Dir* GetDebugXMLResFolder(const char* key) {
    const auto found = debugXMLResFolders().find(key);
    return found == debugXMLResFolders().end() ? nullptr : &found->second;
}

}  // namespace ui
}  // namespace zeblua
