// Views from XML: control trees described in the application's "xml" resources, built by
// the toolkit's node builder with the binding's own classes added.
#pragma once

#include <map>

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/Strings.h"

struct lua_State;

namespace zebcore {
namespace filesupport {
class Dir;
}  // namespace filesupport
}  // namespace zebcore

namespace zebui {
namespace ui {
class UI_Node;
class UI_NodeBuilder;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace ui {

using NodeFactoryFxn =
    boost::function<boost::intrusive_ptr<zebui::ui::UI_Node>(const zebcore::UTF16String&)>;
using XMLNodeMap = std::map<const zebcore::UTF8String, zebui::ui::UI_Node*>;

// The debug folder key the load path reads; an accessor name of the UI resources too.
extern const char* const kAppResources;

// zebcontrols.LoadControlsFromXml(name): the built root's wrapper, or nothing.
int LoadControlsFromXML(lua_State* L);

// Builds the view name, placed at its own origin and shown; null when there is no view
// to build. nodes gets the builder's named nodes. Native callers use it too.
boost::intrusive_ptr<zebui::ui::UI_Node> LoadViewFromXML(const zebcore::UTF16String& name,
                                                         XMLNodeMap& nodes, NodeFactoryFxn factory);

// A builder of the view's text: from the debug folder's "xml" sub-folder when the file is
// there, else from the application's "xml" resources; the language variant
// "name-<language>" wins over name when it is a resource.
boost::intrusive_ptr<zebui::ui::UI_NodeBuilder>
GetNodeBuilderFromResource(const zebcore::UTF16String& name);

// The factory of script loads: the binding's four class names first, then the installed
// factories, oldest first; null when nobody makes className.
boost::intrusive_ptr<zebui::ui::UI_Node>
LuaControlFactoryFunction(const zebcore::UTF16String& className);

// For hosts: appends a factory that the script loads ask after the four names.
void InstallNodeFactoryFxn(NodeFactoryFxn factory);

// For hosts: the debug folder of key, replacing any; only kAppResources is ever read.
void SetDebugXMLResFolder(const char* key, const zebcore::filesupport::Dir& folder);
// Null when key has no folder.
const zebcore::filesupport::Dir* GetDebugXMLResFolder(const char* key);

}  // namespace ui
}  // namespace zeblua
