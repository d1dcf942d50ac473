// What is no longer wanted goes first. If what is left stands in the wanted order, the missing rows are put in between;
// if one row has moved, it is moved. Anything else is rare, and all rows are put in anew.

#include "planner/desktop/plan/RowChanges.h"

#include <algorithm>
#include <map>
#include <optional>
#include <tuple>

namespace planner::desktop {

namespace {

using Rows = std::vector<PlanRow>;

struct Order {
    bool operator()(const PlanRow& left, const PlanRow& right) const {
        return std::tie(left.object, left.relation) < std::tie(right.object, right.relation);
    }
};

/// Takes out of `shown` what is more often there than in `wanted`.
void removeUnwanted(Rows& shown, const Rows& wanted, std::vector<RowChange>& changes) {
    std::map<PlanRow, int, Order> open;
    for (const PlanRow& row : wanted) {
        ++open[row];
    }
    std::vector<bool> stays(shown.size());
    std::transform(shown.begin(), shown.end(), stays.begin(), [&](const PlanRow& row) { return open[row]-- > 0; });
    for (std::size_t end = shown.size(); end > 0;) {
        std::size_t first = end;
        while (first > 0 && !stays[first - 1]) {
            --first;
        }
        if (first < end) {
            changes.push_back({RowChange::Remove, first, end - first});
            shown.erase(shown.begin() + static_cast<std::ptrdiff_t>(first),
                        shown.begin() + static_cast<std::ptrdiff_t>(end));
            end = first;
        } else {
            --end;
        }
    }
}

/// The step for one row that has moved among rows that are otherwise the same, if that is all.
std::optional<RowChange> singleMove(const Rows& shown, const Rows& wanted) {
    if (shown.size() != wanted.size()) {
        return std::nullopt;
    }
    const auto front = std::mismatch(shown.begin(), shown.end(), wanted.begin());
    if (front.first == shown.end()) {
        return std::nullopt;
    }
    const auto back = std::mismatch(shown.rbegin(), shown.rend(), wanted.rbegin());
    const auto first = static_cast<std::size_t>(front.first - shown.begin());
    const auto last = static_cast<std::size_t>(back.first.base() - shown.begin()) - 1;
    if (std::equal(front.first + 1, back.first.base(), front.second) && shown[first] == wanted[last]) {
        return RowChange{RowChange::Move, first, 1, last};
    }
    if (std::equal(front.first, back.first.base() - 1, front.second + 1) && shown[last] == wanted[first]) {
        return RowChange{RowChange::Move, last, 1, first};
    }
    return std::nullopt;
}

/// Whether the rows shown stand in `wanted` in that order.
bool isInOrder(const Rows& shown, const Rows& wanted) {
    std::size_t at = 0;
    for (const PlanRow& row : wanted) {
        at += at < shown.size() && shown[at] == row ? 1 : 0;
    }
    return at == shown.size();
}

void insertMissing(const Rows& shown, const Rows& wanted, std::vector<RowChange>& changes) {
    std::size_t at = 0;
    for (std::size_t first = 0; first < wanted.size();) {
        if (at < shown.size() && shown[at] == wanted[first]) {
            ++at;
            ++first;
            continue;
        }
        std::size_t end = first;
        while (end < wanted.size() && (at == shown.size() || shown[at] != wanted[end])) {
            ++end;
        }
        changes.push_back({RowChange::Insert, first, end - first});
        first = end;
    }
}

} // namespace

std::vector<RowChange> rowChanges(Rows shown, const Rows& wanted) {
    std::vector<RowChange> changes;
    if (isInOrder(shown, wanted)) { // nothing has to go
        insertMissing(shown, wanted, changes);
        return changes;
    }
    removeUnwanted(shown, wanted, changes);
    if (const auto move = singleMove(shown, wanted)) {
        changes.push_back(*move);
        return changes;
    }
    if (!isInOrder(shown, wanted)) {
        changes.push_back({RowChange::Remove, 0, shown.size()});
        shown.clear();
    }
    insertMissing(shown, wanted, changes);
    return changes;
}

} // namespace planner::desktop
