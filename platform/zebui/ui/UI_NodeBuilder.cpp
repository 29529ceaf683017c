// Builds a tree of nodes from an XML view description.
#include "zebui/ui/UI_NodeBuilder.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

#include <pugixml.hpp>

#include "zebcore/debug/Debug.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/controls/UI_DisclosureTriangleButton.h"
#include "zebui/controls/UI_Divider.h"
#include "zebui/controls/UI_HotTextButton.h"
#include "zebui/controls/UI_HotTextNumber.h"
#include "zebui/controls/UI_Knob.h"
#include "zebui/controls/UI_ListBox.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_Popup.h"
#include "zebui/controls/UI_RadioButton.h"
#include "zebui/controls/UI_ScrollBar.h"
#include "zebui/controls/UI_ScrollView.h"
#include "zebui/controls/UI_SearchBox.h"
#include "zebui/controls/UI_SectionView.h"
#include "zebui/controls/UI_Slider.h"
#include "zebui/controls/UI_SplitterView.h"
#include "zebui/controls/UI_StaticImage.h"
#include "zebui/controls/UI_StaticText.h"
#include "zebui/controls/UI_TabWell.h"
#include "zebui/controls/UI_TextButton.h"
#include "zebui/controls/UI_TextEdit.h"
#include "zebui/ui/OS_PopupViewContainer.h"
#include "zebui/ui/UI_ArrangementView.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace ui {
namespace {

namespace zc = zebui::controls;
using NodeP = boost::intrusive_ptr<UI_Node>;

template <class T> UI_Node* makeDefault() {
    return new T();
}

// The same arguments as the controls module's constructors give.
UI_Node* makeListBox() {
    return new zc::UI_ListBox(false, false, false, false);
}
UI_Node* makePopup() {
    return new zc::UI_Popup(0, false);
}
UI_Node* makeSplitterView() {
    return new zc::UI_SplitterView(0, 0.5f, 6.0f);
}
UI_Node* makeSectionView() {
    return new zc::UI_SectionView(zebcore::UTF16String(), true);
}
UI_Node* makeScrollView() {
    return new zc::UI_ScrollView(0, nullptr);
}
UI_Node* makeSearchBox() {
    return new zc::UI_SearchBox(false, false);
}
UI_Node* makeTextEdit() {
    return new zc::UI_TextEdit(0, 0);
}

struct BuiltClass {
    const char* name;
    UI_Node* (*make)();
};

// Every view and control class of the toolkit that a view file may name. Windows and
// dialogs are no views of a file: they need an owner and a supplier.
const BuiltClass kBuiltClasses[] = {
    {"UI_SubView", makeDefault<UI_SubView>},
    {"UI_ArrangementView", makeDefault<UI_ArrangementView>},
    {"OS_PopupViewContainer", makeDefault<OS_PopupViewContainer>},
    {"UI_Checkbox", makeDefault<zc::UI_Checkbox>},
    {"UI_RadioButton", makeDefault<zc::UI_RadioButton>},
    {"UI_PictureButton", makeDefault<zc::UI_PictureButton>},
    {"UI_TextButton", makeDefault<zc::UI_TextButton>},
    {"UI_DisclosureTriangleButton", makeDefault<zc::UI_DisclosureTriangleButton>},
    {"UI_HotTextButton", makeDefault<zc::UI_HotTextButton>},
    {"UI_HotTextNumber", makeDefault<zc::UI_HotTextNumber>},
    {"UI_Knob", makeDefault<zc::UI_Knob>},
    {"UI_Slider", makeDefault<zc::UI_Slider>},
    {"UI_ScrollBar", makeDefault<zc::UI_ScrollBar>},
    {"UI_StaticText", makeDefault<zc::UI_StaticText>},
    {"UI_StaticImage", makeDefault<zc::UI_StaticImage>},
    {"UI_Divider", makeDefault<zc::UI_Divider>},
    {"UI_TabWell", makeDefault<zc::UI_TabWell>},
    {"UI_ListBox", makeListBox},
    {"UI_Popup", makePopup},
    {"UI_SplitterView", makeSplitterView},
    {"UI_SectionView", makeSectionView},
    {"UI_ScrollView", makeScrollView},
    {"UI_SearchBox", makeSearchBox},
    {"UI_TextEdit", makeTextEdit},
};

const BuiltClass* findClass(const char* name) {
    for (const BuiltClass& known : kBuiltClasses)
        if (std::strcmp(known.name, name) == 0) return &known;
    return nullptr;
}

// A number attribute of the frame; a missing one keeps fallback, a bad one is reported
// and keeps it too.
float frameValue(const pugi::xml_node& element, const char* name, float fallback) {
    const pugi::xml_attribute attribute = element.attribute(name);
    if (!attribute) return fallback;
    const char* text = attribute.value();
    char* end = nullptr;
    errno = 0;
    const double value = std::strtod(text, &end);
    const bool good = end != text && *end == '\0' && errno == 0 && std::isfinite(value);
    ZEB_ASSERT_MSG(
        good,
        (std::string("view attribute '") + name + "' is not a number: '" + text + "'").c_str());
    return good ? static_cast<float>(value) : fallback;
}

// true, false, 1 or 0; anything else is reported and keeps fallback.
bool flagValue(const pugi::xml_node& element, const char* name, bool fallback) {
    const pugi::xml_attribute attribute = element.attribute(name);
    if (!attribute) return fallback;
    const std::string text = attribute.value();
    if (text == "true" || text == "1") return true;
    if (text == "false" || text == "0") return false;
    ZEB_ASSERT_MSG(
        false, ("view attribute '" + std::string(name) + "' is not true or false: '" + text + "'")
                   .c_str());
    return fallback;
}

class TreeBuilder {
public:
    TreeBuilder(UI_NodeBuilder::NodeMap& nodes, UI_NodeBuilder::NodeFactory& factory)
        : mNodes(nodes), mFactory(factory) {}

    // The element's node with its subtree, or null when nobody makes its class or it lies
    // too deep.
    NodeP build(const pugi::xml_node& element, int depth = 1) {
        const char* className = element.name();
        ZEB_ASSERT_MSG(depth <= UI_NodeBuilder::kDeepestNesting,
                       (std::string("view element '") + className +
                        "' lies deeper than views nest; skipped with its children")
                           .c_str());
        if (depth > UI_NodeBuilder::kDeepestNesting) return nullptr;
        NodeP node = UI_NodeBuilder::MakeKnownClass(className);
        if (!node && !mFactory.empty()) node = mFactory(zebcore::utility::UTF8to16(className));
        ZEB_ASSERT_MSG(node, (std::string("view class '") + className +
                              "' is built by nobody; skipped with its children")
                                 .c_str());
        if (!node) return nullptr;
        const zebcore::geom::RectT<float> frame = node->UI_GetLocalRectF(false);
        node->UI_SetLocalRectF({frameValue(element, "left", frame.left),
                                frameValue(element, "top", frame.top),
                                frameValue(element, "width", frame.width),
                                frameValue(element, "height", frame.height)});
        if (element.attribute("shown")) node->UI_Show(flagValue(element, "shown", true));
        if (const pugi::xml_attribute id = element.attribute("id")) {
            node->UI_SetNodeID(id.value());
            mNodes[id.value()] = node.get();
        }
        for (const pugi::xml_node& child : element.children()) {
            if (child.type() != pugi::node_element) continue;
            if (const NodeP built = build(child, depth + 1)) node->ChildPushBack(built);
        }
        return node;
    }

private:
    UI_NodeBuilder::NodeMap& mNodes;
    UI_NodeBuilder::NodeFactory& mFactory;
};

}  // namespace

UI_NodeBuilder::UI_NodeBuilder(const zebcore::UTF8String& xml) : mXml(xml) {}

UI_NodeBuilder::~UI_NodeBuilder() = default;

boost::intrusive_ptr<UI_Node> UI_NodeBuilder::Build(const inkwell::SupplierInterface*,
                                                    NodeMap& nodes, NodeFactory factory) const {
    pugi::xml_document document;
    const pugi::xml_parse_result parsed = document.load_buffer(mXml.data(), mXml.size());
    // Blank text, or only comments, describes no view; that is no fault of the text.
    if (parsed.status == pugi::status_no_document_element) return nullptr;
    ZEB_ASSERT_MSG(parsed, (std::string("view XML is malformed at byte ") +
                            std::to_string(parsed.offset) + ": " + parsed.description())
                               .c_str());
    if (!parsed) return nullptr;
    const pugi::xml_node root = document.document_element();
    if (!root) return nullptr;
    return TreeBuilder(nodes, factory).build(root);
}

boost::intrusive_ptr<UI_Node> UI_NodeBuilder::MakeKnownClass(const zebcore::UTF8String& className) {
    const BuiltClass* known = findClass(className.c_str());
    return known ? NodeP(known->make()) : nullptr;
}

bool UI_NodeBuilder::IsKnownClass(const zebcore::UTF8String& className) {
    return findClass(className.c_str()) != nullptr;
}

}  // namespace ui
}  // namespace zebui
