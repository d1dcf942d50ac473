#include "planner/questions/kits/KitsFormats.h"

#include "planner/questions/kits/Structure.h"
#include "planner/text/ObjectText.h"
#include "planner/text/TextTable.h"
#include "planner/text/Words.h"

namespace planner {

namespace {

StyledText number(std::size_t count) {
    return {std::to_string(count)};
}

TextTable listTable() {
    return TextTable({{"", TextTable::Side::Right}, {""}, {""}});
}

void addStructure(const ModelObject& item, TextTable& table) {
    const bool isAll = visitStructure(item, [&](const ModelObject& part, int level) {
        const auto indent = static_cast<std::size_t>(2 * std::min(level, 20));
        table.addRow({"", StyledText(std::string(indent, ' ')).add(nameAndId(part)), kindWord(part)});
    });
    if (!isAll) {
        table.addRow({"", "  and more"});
    }
}

void writeItems(const char* heading, const std::vector<KitItem>& items, KitStructure structure, TextOutput& output) {
    if (items.empty()) {
        return;
    }
    output.line(heading, 1);
    TextTable table = listTable();
    for (const KitItem& entry : items) {
        table.addRow({number(entry.number), nameAndId(*entry.item), kindWord(*entry.item)});
        if (structure == KitStructure::Shown) {
            addStructure(*entry.item, table);
        }
    }
    table.write(output, 2);
}

void writeFasteners(const Kit& kit, TextOutput& output) {
    if (kit.fasteners.empty()) {
        return;
    }
    output.line("sets", 1);
    TextTable table = listTable();
    for (const KitFasteners& type : kit.fasteners) {
        table.addRow({number(type.number), {type.type.empty() ? "without a type" : type.type, Style::Name}});
    }
    table.write(output, 2);
}

void writeDifferences(const Kits& kits, TextOutput& output) {
    if (kits.differences.empty()) {
        output.line("Every item adds up.");
        return;
    }
    output.line({counted(kits.differences.size(), "item") +
                     (kits.differences.size() == 1 ? " doesn't add up:" : " don't add up:"),
                 Style::Warning});
    TextTable table({{"Kits", TextTable::Side::Right}, {"Bill", TextTable::Side::Right}, {"Item"}, {"Reason"}});
    for (const KitDifference& each : kits.differences) {
        table.addRow({number(each.inKits), number(each.inBill), nameAndId(*each.item), each.reasons.front()});
        for (std::size_t i = 1; i < each.reasons.size(); ++i) {
            table.addRow({"", "", "", each.reasons[i]});
        }
    }
    table.write(output, 1);
}

} // namespace

void writeKitsText(const Kits& kits, KitStructure structure, TextOutput& output) {
    for (const Kit& kit : kits.kits) {
        output.line(pathAndId(*kit.place, Style::Heading));
        writeItems("brings in", kit.broughtIn, structure, output);
        writeFasteners(kit, output);
        writeItems("takes away", kit.takenAway, KitStructure::LeftOut, output);
        writeItems("puts out", kit.putOut, KitStructure::LeftOut, output);
        output.line();
    }
    output.line(counted(kits.kits.size(), "kit") + ": " + std::to_string(kits.broughtIn) + " brought in with " +
                counted(kits.parts, "part") + ", " + counted(kits.fasteners, "fastener") + ", " +
                std::to_string(kits.putOut) + " put out. The bill has " + counted(kits.inBill, "element") + '.');
    writeDifferences(kits, output);
}

} // namespace planner
