#pragma once

#include "planner/edit/Change.h"

#include <memory>
#include <string>
#include <vector>

namespace planner {

/// What a person undoes at once: changes in the order in which they were made, and a text that says what they do.
class UndoStep {
public:
    explicit UndoStep(std::string text) : text_(std::move(text)) {}

    const std::string& text() const { return text_; }
    std::size_t size() const { return changes_.size(); }

    /// Makes a change and keeps it.
    void make(std::unique_ptr<Change> change);

    /// Takes the changes behind the first `size` ones back for good.
    void cancel(std::size_t size);

    void undo();
    void redo();

    /// The step is undone and never comes again.
    void forget();

    /// What views are told after the step was made, and after it was undone.
    ChangeKinds kindsMade() const;
    ChangeKinds kindsUndone() const;

private:
    std::string text_;
    std::vector<std::unique_ptr<Change>> changes_;
};

} // namespace planner
