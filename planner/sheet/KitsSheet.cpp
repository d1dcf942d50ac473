#include "planner/sheet/KitsSheet.h"

#include "planner/text/ObjectText.h"

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
}

std::size_t rowsOfKits(const Kits& kits) {
    std::size_t rows = kits.kits.size();
    for (const Kit& kit : kits.kits) {
        visitLists(kit,
                   [&](const std::vector<KitItem>& items, const char*, const std::string&) { rows += items.size(); });
    }
    return rows;
}

} // namespace planner
