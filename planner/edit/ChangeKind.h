#pragma once

#include <cstdint>
#include <vector>

namespace planner {

/// Kinds of notification, with the numbers that the views of a plan know them by.
enum class ChangeKind : std::uint8_t {
    None = 0,
    Reworded = 1,        ///< a name, a type, notes or the title read differently; no bill changes
    FlowObjectAdded = 3, ///< an activity, a resource or a behaviour was added
    FlowObjectGone = 17, ///< one was removed or moved
    LinkAdded = 18,
    LinkGone = 27,
    ListsChanged = 29, ///< items or outputs of an activity or a resource, or which of them count
    ItemChanged = 39   ///< an item itself, or a resource as a part of a product
};

/// What a change is for the views when it is made, and when it is taken back.
struct KindPair {
    ChangeKind made = ChangeKind::None;
    ChangeKind takenBack = ChangeKind::None;
};

constexpr KindPair eitherWay(ChangeKind kind) {
    return {kind, kind};
}

inline constexpr KindPair kFlowObjectAdded{ChangeKind::FlowObjectAdded, ChangeKind::FlowObjectGone};
inline constexpr KindPair kFlowObjectRemoved{ChangeKind::FlowObjectGone, ChangeKind::FlowObjectAdded};
inline constexpr KindPair kFlowObjectMoved = eitherWay(ChangeKind::FlowObjectGone);

/// A set of kinds.
class ChangeKinds {
public:
    void add(ChangeKind kind) { bits_ |= std::uint64_t(1) << static_cast<unsigned>(kind); }

    /// The numbers of the kinds, ascending, without None.
    std::vector<int> numbers() const {
        std::vector<int> result;
        for (int number = 1; number < 64; ++number) {
            if ((bits_ >> static_cast<unsigned>(number) & 1U) != 0) {
                result.push_back(number);
            }
        }
        return result;
    }

private:
    std::uint64_t bits_ = 0;
};

} // namespace planner
