// Builds a tree of nodes from an XML view description.
#pragma once

#include <map>

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/RefCountedObject.h"
#include "zebcore/utility/Strings.h"

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell

namespace ui {

class UI_Node;

// The schema is in docs/xml-views.md. In short: each element is a node whose class is the
// element's name; the attribute id names it, left, top, width and height give its frame
// in its parent's coordinates, shown="false" hides it; child elements become its children
// in document order.
//
// A class this builder doesn't make itself goes to the factory function; a class that
// nobody makes is skipped with its whole subtree and an assertion report. Text that is
// empty or not well-formed XML, or whose root element nobody makes, gives a null root
// (the malformed case with a report). Nothing here throws for a bad document.
class UI_NodeBuilder : public zebcore::utility::RefCountedObject {
public:
    using NodeFactory = boost::function<boost::intrusive_ptr<UI_Node>(const zebcore::UTF16String&)>;
    using NodeMap = std::map<const zebcore::UTF8String, UI_Node*>;
    // Elements nested deeper than this (the root is at 1) are skipped with a report, so a
    // hostile file can't exhaust the stack of the build or of the tree's own walks.
    static constexpr int kDeepestNesting = 200;

    // Takes the whole text; it is parsed at each Build.
    explicit UI_NodeBuilder(const zebcore::UTF8String& xml);
    ~UI_NodeBuilder() override;

    // Fills nodes with each built node that has an id (a later node of the same id takes
    // the entry), and answers the root. The supplier is the one the view will draw
    // through; the stand-in's nodes need none at build time.
    boost::intrusive_ptr<UI_Node> Build(const inkwell::SupplierInterface* supplier, NodeMap& nodes,
                                        NodeFactory factory) const;

    // A new node of a class this builder knows, or null: the one table of built classes.
    static boost::intrusive_ptr<UI_Node> MakeKnownClass(const zebcore::UTF8String& className);
    // Whether MakeKnownClass makes className.
    static bool IsKnownClass(const zebcore::UTF8String& className);

private:
    zebcore::UTF8String mXml;
};

}  // namespace ui
}  // namespace zebui
