#pragma once

#include "planner/edit/UndoStep.h"

#include <optional>
#include <vector>

namespace planner {

/// The steps that were made, and of those the ones that are undone. Keeps them all.
class UndoStack {
public:
    /// Enters a step that was just made; what is undone by now can't come again.
    void push(UndoStep step);

    /// The step that is undone or redone next, null when there is none.
    const UndoStep* nextUndo() const { return done_ > 0 ? &steps_[done_ - 1] : nullptr; }
    const UndoStep* nextRedo() const { return done_ < steps_.size() ? &steps_[done_] : nullptr; }

    /// Undoes or redoes that step, which has to be there, and gives what views are to be told.
    ChangeKinds undo();
    ChangeKinds redo();

    /// Whether the plan differs from how it was at the last markSaved, or at first.
    bool isModified() const { return saved_ != done_; }
    void markSaved() { saved_ = done_; }

private:
    std::vector<UndoStep> steps_;
    std::size_t done_ = 0;
    std::optional<std::size_t> saved_ = 0; // nothing: no undo or redo leads there any more
};

} // namespace planner
