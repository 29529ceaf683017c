// The undo history.
#include "zebundo/UndoHistory.h"

#include <utility>

namespace zebundo {

UndoHistory* UndoHistory::Get() {
    static UndoHistory sHistory;
    return &sHistory;
}

void UndoHistory::AddAction(const boost::intrusive_ptr<Action>& action) {
    if (!action) return;
    std::vector<Step> dropped;
    dropped.swap(mRedo);  // released after the new step is in, whatever they run on release
    mUndo.push_back(Step{action, {}});
}

void UndoHistory::AddStateRestorer(const boost::intrusive_ptr<StateRestorer>& restorer) {
    if (!restorer) return;
    if (mUndo.empty()) mUndo.push_back(Step{});
    mUndo.back().restorers.push_back(restorer);
}

Action* UndoHistory::GetUndoAction() const {
    return mUndo.empty() ? nullptr : mUndo.back().action.get();
}

Action* UndoHistory::GetRedoAction() const {
    return mRedo.empty() ? nullptr : mRedo.back().action.get();
}

bool UndoHistory::Undo() {
    return move(mUndo, mRedo, true);
}

bool UndoHistory::Redo() {
    return move(mRedo, mUndo, false);
}

// The step leaves its list before it runs and is held here, so what its action or
// restorers do to the history (add, clear) can't pull it from under them.
bool UndoHistory::move(std::vector<Step>& from, std::vector<Step>& to, bool undo) {
    if (mRunning) return false;
    while (!from.empty()) {
        Step step = std::move(from.back());
        from.pop_back();
        if (step.action && !step.action->DoStillViable()) continue;
        mRunning = true;
        if (step.action) {
            if (undo)
                step.action->Undo();
            else
                step.action->Redo();
        }
        for (const auto& restorer : step.restorers)
            restorer->RestoreState();
        mRunning = false;
        to.push_back(std::move(step));
        return true;
    }
    return false;
}

void UndoHistory::Trim(size_t maxSteps) {
    if (mUndo.size() <= maxSteps) return;
    std::vector<Step> dropped(std::make_move_iterator(mUndo.begin()),
                              std::make_move_iterator(mUndo.end() - maxSteps));
    mUndo.erase(mUndo.begin(), mUndo.end() - maxSteps);
}

void UndoHistory::Clear() {
    std::vector<Step> undo, redo;
    undo.swap(mUndo);
    redo.swap(mRedo);
}

}  // namespace zebundo
