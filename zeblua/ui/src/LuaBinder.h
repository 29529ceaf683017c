// The counted base of every binder a node's binding table holds.
#pragma once

#include "zebcore/utility/RefCountedObject.h"

namespace zeblua {
namespace ui {

// Held by boost::intrusive_ptr in a slot of a LuaBindingTable, and by nothing else for
// long: a binder lives as long as its node's table. Subclasses keep the Lua functions
// a script bound and the hooks that reach them.
class LuaBinder : public zebcore::utility::RefCountedObject {
public:
    ~LuaBinder() override;
};

}  // namespace ui
}  // namespace zeblua
