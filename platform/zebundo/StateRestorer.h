// Restores a piece of application state (a selection, a scroll position) around an undo.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/RefCountedObject.h"

namespace zebundo {

// Counted: the history holds the restorers of each step.
class StateRestorer : public zebcore::utility::RefCountedObject {
public:
    StateRestorer();
    ~StateRestorer() override;

    // Called after the step's actions were undone, and again after they were redone.
    virtual void RestoreState() = 0;
    // Takes in a later restorer of the same kind. Nothing by default.
    virtual void MergeIn(boost::intrusive_ptr<StateRestorer> inOther);
};

}  // namespace zebundo
