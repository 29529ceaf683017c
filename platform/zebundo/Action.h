// An undoable step of the application's undo history.
#pragma once

#include "zebcore/utility/RefCountedObject.h"
#include "zebcore/utility/Strings.h"

namespace zebundo {

// Counted: the history holds the actions it records. The two flags are the application's
// to interpret; the history keeps them and orders steps by neither.
class Action : public zebcore::utility::RefCountedObject {
public:
    Action(bool inUndoable, bool inChangesDocument, const zebcore::UTF16String& inDescription);
    ~Action() override;

    bool IsUndoable() const { return mUndoable; }
    bool ChangesDocument() const { return mChangesDocument; }

    // The description as given.
    virtual zebcore::UTF16String GetActionString() const;
    // "Undo <description>" and "Redo <description>", for a menu.
    virtual zebcore::UTF16String GetUndoDescription() const;
    virtual zebcore::UTF16String GetRedoDescription() const;
    // What the history calls; they run UndoSelf and RedoSelf.
    virtual void Undo();
    virtual void Redo();
    // False once the step can no longer be taken back; the history then drops it.
    virtual bool DoStillViable() const;

protected:
    virtual void UndoSelf() = 0;
    virtual void RedoSelf() = 0;

private:
    bool mUndoable;
    bool mChangesDocument;
    zebcore::UTF16String mDescription;
};

}  // namespace zebundo
