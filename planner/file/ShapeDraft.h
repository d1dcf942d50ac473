#pragma once

#include "planner/file/Faults.h"
#include "planner/file/PlanGrammar.h"
#include "planner/model/Geometry.h"

#include <string>
#include <vector>

namespace planner {

/// A shape whose keys are still coming: exactly one of them has to name a form.
class ShapeDraft {
public:
    void text(Key key, std::string value, std::size_t offset, Faults& faults);
    void numbers(Key key, std::vector<double> values, std::size_t offset, Faults& faults);
    void setNotes(std::string json) { shape_.notes = std::move(json); }

    /// Counts a key that names a form, whether its value is right or not.
    void keySeen(Key key, std::size_t offset, Faults& faults);

    /// The shape, whose object began at the offset.
    Shape take(std::size_t offset, Faults& faults);

private:
    Shape shape_;
    bool hasForm_ = false;
};

} // namespace planner
