#include "planner/edit/Step.h"

#include <algorithm>

namespace planner {

void Step::make(std::unique_ptr<Change> change) {
    changes_.push_back(std::move(change));
    try {
        changes_.back()->apply();
    } catch (...) {
        changes_.pop_back();
        throw;
    }
}

void Step::cancel(std::size_t size) {
    while (changes_.size() > size) {
        changes_.back()->revert();
        changes_.back()->forget();
        changes_.pop_back();
    }
}

void Step::undo() {
    std::for_each(changes_.rbegin(), changes_.rend(), [](const auto& change) { change->revert(); });
}

void Step::redo() {
    std::for_each(changes_.begin(), changes_.end(), [](const auto& change) { change->apply(); });
}

void Step::forget() {
    std::for_each(changes_.rbegin(), changes_.rend(), [](const auto& change) { change->forget(); });
}

Kinds Step::kindsMade() const {
    Kinds kinds;
    for (const auto& change : changes_) {
        kinds.add(change->kinds().made);
    }
    return kinds;
}

Kinds Step::kindsUndone() const {
    Kinds kinds;
    for (const auto& change : changes_) {
        kinds.add(change->kinds().takenBack);
    }
    return kinds;
}

} // namespace planner
