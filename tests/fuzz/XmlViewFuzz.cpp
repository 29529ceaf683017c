// Fuzz target: the node builder with arbitrary view text. Whatever the text, a build
// answers a root or nothing without crashing, every named node it reports belongs to the
// root's tree, and a second build of the same text builds the same shape.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <boost/intrusive_ptr.hpp>

#include "zebcore/debug/Debug.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_NodeBuilder.h"

namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;
using zebui::ui::UI_NodeBuilder;

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

// A factory of one made-up class, so that factory paths are taken too.
NodeP factory(const zebcore::UTF16String& name) {
    return name == u"Made" ? NodeP(new zebui::controls::UI_Checkbox()) : NodeP();
}

bool inTree(const zebui::ui::UI_Node* node, const zebui::ui::UI_Node* root) {
    for (; node; node = node->UI_GetParentNode())
        if (node == root) return true;
    return false;
}

// Nodes in the tree, depth first.
size_t countNodes(const zebui::ui::UI_Node& node) {
    size_t count = 1;
    for (auto child = node.ChildBegin(); child != node.ChildEnd(); ++child)
        count += countNodes(**child);
    return count;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static const bool quiet = (zebcore::debug::SetAssertEchoEnabled(false), true);
    (void)quiet;
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    const boost::intrusive_ptr<UI_NodeBuilder> builder(new UI_NodeBuilder(text));
    UI_NodeBuilder::NodeMap nodes;
    const NodeP root = builder->Build(nullptr, nodes, &factory);
    if (!root && !nodes.empty()) fail("named nodes without a root");
    for (const auto& entry : nodes)
        if (!inTree(entry.second, root.get())) fail("a named node outside the root's tree");
    if (root) {
        UI_NodeBuilder::NodeMap again;
        const NodeP second = builder->Build(nullptr, again, &factory);
        if (!second || countNodes(*second) != countNodes(*root) || again.size() != nodes.size())
            fail("the same text built another shape");
    }
    zebcore::debug::ClearRecordedAssertReports();
    return 0;
}
