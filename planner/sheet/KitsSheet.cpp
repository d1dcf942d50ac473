#include "planner/sheet/KitsSheet.h"

#include "planner/text/ObjectText.h"

#include <algorithm>

namespace planner {

namespace {

constexpr int kPlaceLevel = 1;
constexpr int kItemLevel = 2;

/// Calls visit(items, what becomes of them, type) for the lists of a kit.
template <class Visit>
void visitLists(const Kit& kit, Visit visit) {
    visit(kit.broughtIn, "brings in", std::string());
    for (const KitFasteners& fasteners : kit.fasteners) {
        visit(fasteners.items, "sets", fasteners.type);
    }
    visit(kit.takenAway, "takes away", std::string());
    visit(kit.putOut, "puts out", std::string());
}

std::string inOneText(const std::vector<std::string>& reasons) {
    std::string all;
    for (const std::string& reason : reasons) {
        all += (all.empty() ? "" : "; ") + reason;
    }
    return all;
}

/// What doesn't add up between kits and bill.
void addDifferences(Workbook& workbook, const std::vector<KitDifference>& differences) {
    workbook.beginSheet("Kits against bill",
                        {{"Item", 36}, {"In kits", 8}, {"In bill", 8}, {"Kind", 10}, {"Id", 24}, {"Reason", 100}});
    for (const KitDifference& each : differences) {
        workbook.addRow(kPlaceLevel,
                        {each.item->name(), static_cast<double>(each.inKits), static_cast<double>(each.inBill),
                         std::string(kindWord(*each.item)), each.item->id(), inOneText(each.reasons)});
    }
}

} // namespace

void addKitsSheet(Workbook& workbook, const Kits& kits, const std::string& name) {
    workbook.beginSheet(
        name, {{"Place or item", 50, true}, {"What", 12}, {"Number", 8}, {"Type", 14}, {"Kind", 10}, {"Id", 24}});
    for (const Kit& kit : kits.kits) {
        workbook.addRow(kPlaceLevel,
                        {pathOfNames(*kit.place), {}, {}, {}, std::string(kindWord(*kit.place)), kit.place->id()});
        visitLists(kit, [&](const std::vector<KitItem>& items, const char* what, const std::string& type) {
            for (const KitItem& each : items) {
                workbook.addRow(kItemLevel, {each.item->name(), std::string(what), static_cast<double>(each.number),
                                             type, std::string(kindWord(*each.item)), each.item->id()});
            }
        });
    }
    if (!kits.differences.empty()) {
        addDifferences(workbook, kits.differences);
    }
}

std::size_t rowsOfKits(const Kits& kits) {
    std::size_t rows = kits.kits.size();
    for (const Kit& kit : kits.kits) {
        visitLists(kit,
                   [&](const std::vector<KitItem>& items, const char*, const std::string&) { rows += items.size(); });
    }
    return std::max(rows, kits.differences.size());
}

} // namespace planner
