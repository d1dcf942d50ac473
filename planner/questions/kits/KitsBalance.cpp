// Kits and bill are counted item by item. Where the two differ, what became of the item's mentions tells why: of those
// that a kit counts, one that doesn't stand; of the others, one that does.

#include "planner/questions/kits/KitsBalance.h"

#include "planner/questions/explain/ExplainFormats.h"
#include "planner/questions/kits/Structure.h"
#include "planner/text/ObjectText.h"
#include "planner/text/Words.h"

#include <algorithm>

namespace planner {

namespace {

constexpr std::size_t kReasons = 3;

struct Count {
    std::size_t inKits = 0;
    std::size_t inBill = 0;
};
using Counts = std::unordered_map<const ModelObject*, Count>;

Counts countAll(const RecordedBill& bill, Kits& kits) {
    Counts counts;
    const auto add = [&](const KitItem& entry, std::size_t& sum) {
        std::size_t& inKits = counts[entry.item].inKits;
        inKits = sumOf(inKits, entry.number);
        sum = sumOf(sum, entry.number);
    };
    std::vector<KitItem> wholes;
    for (const Kit& kit : kits.kits) {
        for (const KitItem& entry : kit.broughtIn) {
            add(entry, kits.broughtIn);
            wholes.push_back(entry);
        }
        for (const KitFasteners& type : kit.fasteners) {
            std::for_each(type.items.begin(), type.items.end(),
                          [&](const KitItem& entry) { add(entry, kits.fasteners); });
        }
        for (const KitItem& entry : kit.putOut) {
            add(entry, kits.putOut);
        }
    }
    for (const KitItem& part : partsOf(wholes)) {
        add(part, kits.parts);
    }
    for (std::uint32_t row = 0; row < bill.rows().size(); ++row) {
        ++counts[&objectInRow(bill, row)].inBill;
    }
    kits.inBill = bill.rows().size();
    return counts;
}

bool countsInKits(const Mention& mention) {
    return mention.role == Role::FirstAssigned ||
           (!mention.partOf && (mention.role == Role::PutOut || mention.role == Role::Joined));
}

std::string reasonText(const RecordedBill& bill, const ModelObject& item, const Mention& mention,
                       const Result& result) {
    std::string text = std::string(roleText(mention.role)) + " in " + nameAndId(*mention.step).plain();
    if (mention.partOf) {
        text += ", as part of " + nameAndId(*mention.partOf).plain();
    }
    text += ": " + resultText(bill, item, mention, result).plain();
    if (result.outcome == Outcome::Stands && result.rows.size() > 1) {
        text += ' ' + counted(result.rows.size(), "time");
    }
    return text;
}

/// Why an item is missing: what became of what was counted. Why there is more: what else stands, or stands repeatedly.
std::vector<std::string> reasonsFor(const RecordedBill& bill, const Explanation& explanation, const Count& count) {
    const bool isMissing = count.inBill < count.inKits;
    std::vector<std::string> reasons;
    std::size_t more = 0;
    for (const Mention& mention : explanation.mentions) {
        for (const Result& result : mention.results) {
            const bool stands = result.outcome == Outcome::Stands;
            const bool isInKits = countsInKits(mention) && result.outcome != Outcome::OutsideRoot;
            const bool tells =
                isMissing ? isInKits && !stands : stands && (!countsInKits(mention) || result.rows.size() > 1);
            if (tells && reasons.size() < kReasons) {
                reasons.push_back(reasonText(bill, *explanation.item, mention, result));
            } else if (tells) {
                ++more;
            }
        }
    }
    if (reasons.empty()) {
        reasons.emplace_back(isMissing ? "part of something that isn't in the bill with all its structure"
                                       : "stands in the bill with each of several things that it is a part of");
    }
    if (more > 0) {
        reasons.push_back("and " + std::to_string(more) + " more");
    }
    return reasons;
}

} // namespace

void balanceKits(const Plan& plan, const RecordedBill& bill, Kits& kits) {
    const Counts counts = countAll(bill, kits);
    std::vector<const ModelObject*> differing;
    for (const Item* item : plan.items) {
        const auto found = counts.find(item);
        if (found != counts.end() && found->second.inKits != found->second.inBill) {
            differing.push_back(item);
        }
    }
    for (const Explanation& explanation : explain(plan, bill, differing)) {
        const Count& count = counts.at(explanation.item);
        kits.differences.push_back(
            {explanation.item, count.inKits, count.inBill, reasonsFor(bill, explanation, count)});
    }
}

} // namespace planner
