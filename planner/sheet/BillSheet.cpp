#include "planner/sheet/BillSheet.h"

#include "planner/model/Item.h"
#include "planner/text/ObjectText.h"
#include "planner/text/Words.h"

#include <algorithm>

namespace planner {

namespace {

constexpr std::size_t kWidest = 70;
constexpr std::size_t kNarrowest = 6;
constexpr std::size_t kKindWidth = 10;
constexpr std::size_t kTypeWidth = 14;
constexpr std::size_t kIndentWidth = 2;

std::string typeOf(const ModelObject& object) {
    const auto* const fastener = dynamic_cast<const Fastener*>(&object);
    return fastener ? fastener->type.value_or("") : std::string();
}

} // namespace

void addBillSheet(Workbook& workbook, const Bill& bill, const std::string& name) {
    std::size_t nameWidth = kNarrowest;
    std::size_t idWidth = kNarrowest;
    for (const BillElement& element : bill) {
        const std::size_t indent = kIndentWidth * static_cast<std::size_t>(element.level - 1);
        nameWidth = std::max(nameWidth, displayWidth(element.name) + indent);
        idWidth = std::max(idWidth, displayWidth(element.object->id()));
    }
    workbook.beginSheet(name, {{"Level", kNarrowest},
                               {"Name", std::min(nameWidth, kWidest), true},
                               {"Kind", kKindWidth},
                               {"Type", kTypeWidth},
                               {"Id", std::min(idWidth, kWidest)}});
    for (const BillElement& element : bill) {
        workbook.addRow(element.level,
                        {static_cast<double>(element.level), element.name, std::string(kindWord(*element.object)),
                         typeOf(*element.object), element.object->id()});
    }
}

} // namespace planner
