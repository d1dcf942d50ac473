#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace planner {

/// Why an edit was refused. Nothing has changed then.
class EditError : public std::runtime_error {
public:
    enum class Fault : std::uint8_t {
        UnknownObject, ///< an object or an id that isn't in this plan
        EmptyId,
        TakenId,     ///< another object of the plan has the id
        BadText,     ///< no UTF-8, or with a character that a plan file can't hold
        BadValue,    ///< a shape or a place that can't be meant
        Cycle,       ///< an object would stand in itself
        WrongSort,   ///< an object that can't be used like that
        NoSuchPlace, ///< a position that the list doesn't have, a link that isn't there
        InUse        ///< something else rests on what would go
    };

    EditError(Fault fault, const std::string& message) : std::runtime_error(message), fault_(fault) {}

    Fault fault() const { return fault_; }

private:
    Fault fault_;
};

} // namespace planner
