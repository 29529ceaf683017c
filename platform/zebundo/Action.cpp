// Undoable steps.
#include "zebundo/Action.h"

namespace zebundo {

Action::Action(bool inUndoable, bool inChangesDocument, const zebcore::UTF16String& inDescription)
    : mUndoable(inUndoable), mChangesDocument(inChangesDocument), mDescription(inDescription) {}

Action::~Action() = default;

zebcore::UTF16String Action::GetActionString() const {
    return mDescription;
}

zebcore::UTF16String Action::GetUndoDescription() const {
    return u"Undo " + mDescription;
}

zebcore::UTF16String Action::GetRedoDescription() const {
    return u"Redo " + mDescription;
}

void Action::Undo() {
    UndoSelf();
}

void Action::Redo() {
    RedoSelf();
}

bool Action::DoStillViable() const {
    return true;
}

}  // namespace zebundo
