// The application's undo history: steps of actions and state restorers.
#pragma once

#include <cstddef>
#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zebundo/Action.h"
#include "zebundo/StateRestorer.h"

namespace zebundo {

// One history for the process. It owns what it records (by counted reference) and lets go
// of it when a step is trimmed, cleared or overwritten by a new action.
//
// A step is an action and the restorers added after it. Undo takes back the newest step:
// its action's Undo, then its restorers in order; redo runs the action's Redo, then the
// restorers again. A restorer added before any action makes a step of its own. A new
// action drops every step that could be redone. Undo and redo don't nest: asked while one
// runs, they do nothing and answer false.
class UndoHistory {
public:
    static UndoHistory* Get();

    UndoHistory(const UndoHistory&) = delete;
    UndoHistory& operator=(const UndoHistory&) = delete;

    void AddAction(const boost::intrusive_ptr<Action>& action);
    void AddStateRestorer(const boost::intrusive_ptr<StateRestorer>& restorer);

    size_t GetUndoCount() const { return mUndo.size(); }
    size_t GetRedoCount() const { return mRedo.size(); }
    // The newest step that can be undone, or redone; null when there is none.
    Action* GetUndoAction() const;
    Action* GetRedoAction() const;

    // True when a step was taken back (or forward). A step whose action is no longer
    // viable is dropped unrun, and the next one is tried.
    bool Undo();
    bool Redo();

    // Keeps at most maxSteps undoable steps, dropping the oldest; the redo steps stay.
    void Trim(size_t maxSteps);
    // Drops every step.
    void Clear();

private:
    struct Step {
        boost::intrusive_ptr<Action> action;
        std::vector<boost::intrusive_ptr<StateRestorer>> restorers;
    };

    UndoHistory() = default;
    bool move(std::vector<Step>& from, std::vector<Step>& to, bool undo);

    std::vector<Step> mUndo;  // newest last
    std::vector<Step> mRedo;  // next to redo last
    bool mRunning = false;
};

}  // namespace zebundo
