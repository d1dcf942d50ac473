#include "planner/edit/UndoStack.h"

namespace planner {

void UndoStack::push(UndoStep step) {
    while (steps_.size() > done_) {
        steps_.back().forget();
        steps_.pop_back();
    }
    if (saved_ && *saved_ > done_) {
        saved_.reset();
    }
    steps_.push_back(std::move(step));
    ++done_;
}

ChangeKinds UndoStack::undo() {
    UndoStep& step = steps_[done_ - 1];
    step.undo();
    --done_;
    return step.kindsUndone();
}

ChangeKinds UndoStack::redo() {
    UndoStep& step = steps_[done_];
    step.redo();
    ++done_;
    return step.kindsMade();
}

} // namespace planner
