#include "planner/desktop/plan/FreeId.h"

#include "planner/model/Plan.h"

#include <cctype>

namespace planner::desktop {

FreeId freeId(const Plan& plan, const std::string& word) {
    const auto idOf = [&](int number) {
        return word + '-' + std::to_string(number);
    };
    const auto isFree = [&](int number) {
        return !plan.find(idOf(number));
    };
    // Ids are mostly taken up to some number, which a search by halves finds; with gaps it finds one of those.
    int taken = 0;
    int free = 1;
    while (!isFree(free)) {
        taken = free;
        free *= 2;
    }
    while (free - taken > 1) {
        const int middle = taken + (free - taken) / 2;
        (isFree(middle) ? free : taken) = middle;
    }
    std::string name = word + ' ' + std::to_string(free);
    name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    return {idOf(free), name};
}

} // namespace planner::desktop
