// The part of a node that draws with the theme its owners selected.
#pragma once

namespace zebui {
namespace ui {

// Empty until the toolkit's themes exist; it keeps the node's class tree in its shape.
class ThemeClient {
public:
    virtual ~ThemeClient();

protected:
    ThemeClient() = default;
};

}  // namespace ui
}  // namespace zebui
