#include "planner/edit/UndoStep.h"

#include <algorithm>

namespace planner {

void UndoStep::make(std::unique_ptr<Change> change) {
    changes_.push_back(std::move(change));
    try {
        changes_.back()->apply();
    } catch (...) {
        changes_.pop_back();
        throw;
    }
}

void UndoStep::cancel(std::size_t size) {
    while (changes_.size() > size) {
        changes_.back()->revert();
        changes_.back()->forget();
        changes_.pop_back();
    }
}

void UndoStep::undo() {
    std::for_each(changes_.rbegin(), changes_.rend(), [](const auto& change) { change->revert(); });
}

void UndoStep::redo() {
    std::for_each(changes_.begin(), changes_.end(), [](const auto& change) { change->apply(); });
}

void UndoStep::forget() {
    std::for_each(changes_.rbegin(), changes_.rend(), [](const auto& change) { change->forget(); });
}

ChangeKinds UndoStep::kindsMade() const {
    ChangeKinds kinds;
    for (const auto& change : changes_) {
        kinds.add(change->kinds().made, change->kinds().owner);
    }
    return kinds;
}

ChangeKinds UndoStep::kindsUndone() const {
    ChangeKinds kinds;
    for (const auto& change : changes_) {
        kinds.add(change->kinds().takenBack, change->kinds().owner);
    }
    return kinds;
}

} // namespace planner
