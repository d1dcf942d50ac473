#include "planner/questions/explain/ExplainFormats.h"

#include "planner/text/ObjectText.h"
#include "planner/text/TextTable.h"
#include "planner/text/Words.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace planner {

namespace {

constexpr std::size_t kRowsNamed = 5;
constexpr std::size_t kNamesAbove = 12;
constexpr double kExactlyCounted = 9007199254740992.0; // 2^53

Style styleOf(Outcome outcome) {
    switch (outcome) {
    case Outcome::Stands:
        return Style::Added;
    case Outcome::LeftOutInStation:
    case Outcome::NotReached:
    case Outcome::NothingToTakeAway:
    case Outcome::OnlyWorkedOn:
        return Style::Warning;
    case Outcome::HiddenFastener:
    case Outcome::NoFastener:
    case Outcome::OutsideRoot:
        return Style::Plain;
    default:
        return Style::Gone;
    }
}

/// What each outcome is called, in front of the step that decided it.
constexpr std::array<std::string_view, kOutcomes> kPhrases{
    "stands in the bill",
    "taken away by the removal in ",
    "takes away the assignment in ",
    "finds no assignment to take away",
    "dropped: first assigned in ",
    "dropped: assigned as well in ",
    "dropped: named again in ",
    "dropped with ",
    "only worked on, never brought in",
    "left out: inside ",
    "never reached: no way leads from the step to the end of the flow",
    "hidden: ",
    "not a fastener, and of the further items of a step only fasteners are shown",
    "outside of what the bill is of: in ",
    "adds nothing: other occurrences of the item decide"};

/// What a person should know of the place of the step that decided.
std::string_view orderPhrase(const Result& result) {
    const bool later = result.order > 0;
    const bool earlier = result.order < 0;
    switch (result.outcome) {
    case Outcome::LeftOutInStation:
        return ", where only what loading activities bring in counts";
    case Outcome::TakenAway:
        return earlier ? ", which comes before it" : "";
    case Outcome::TakesAway:
        return later ? ", which comes later" : "";
    case Outcome::NamedIn:
    case Outcome::WentWithWhole:
        return later ? ", which comes later" : earlier ? ", which the bill comes to first" : "";
    default:
        return "";
    }
}

std::string_view whyHidden(const RecordedBill& bill, const ModelObject& item) {
    const auto& fastener = static_cast<const Fastener&>(item);
    if (!fastener.isOfKnownType()) {
        return fastener.type ? "a fastener of a type that no bill shows" : "a fastener without a type";
    }
    if (bill.showsAssignedFastenersOnly() && !fastener.assigned.value_or(true)) {
        return "a fastener that isn't assigned";
    }
    return "a fastener of a type that isn't shown";
}

StyledText headLine(const Explanation& explanation) {
    StyledText line = nameAndId(*explanation.item, Style::Heading);
    line.add(", ").add(kindWord(*explanation.item)).add(": ");
    if (explanation.rows.empty()) {
        return line.add("not in the bill", Style::Gone);
    }
    const std::string often = explanation.rows.size() == 1 ? "" : counted(explanation.rows.size(), "time");
    return line.add(often.empty() ? "in the bill" : often + " in the bill", Style::Added);
}

void writePlaces(const RecordedBill& bill, const Explanation& explanation, TextOutput& output) {
    const std::size_t named = std::min(explanation.rows.size(), kRowsNamed);
    for (std::size_t i = 0; i < named; ++i) {
        const std::uint32_t row = explanation.rows[i];
        const std::string above = namesAboveRow(bill, row);
        StyledText line("line " + std::to_string(row + 1) + ", ");
        line.add(above.empty() ? "at the top" : "below ").add(above, Style::Name);
        output.line(line, 1);
    }
    if (named < explanation.rows.size()) {
        output.line("and " + std::to_string(explanation.rows.size() - named) + " more", 1);
    }
}

void writeWholes(const Explanation& explanation, TextOutput& output) {
    if (explanation.wholes.empty()) {
        return;
    }
    StyledText line("part of ");
    const std::size_t named = std::min(explanation.wholes.size(), kRowsNamed);
    for (std::size_t i = 0; i < named; ++i) {
        line.add(i == 0 ? "" : ", ").add(nameAndId(*explanation.wholes[i]));
    }
    const std::size_t more = explanation.wholes.size() - named;
    output.line(line.add(more > 0 ? " and " + std::to_string(more) + " more" : ""), 1);
}

StyledText relationText(const Mention& mention) {
    StyledText text(roleText(mention.role));
    if (mention.partOf) {
        text.add(", as part of ").add(mention.partOf->name());
    } else if (mention.entries > 1) {
        text.add(", " + std::to_string(mention.entries) + " times");
    }
    return text;
}

void writeMentions(const RecordedBill& bill, const Explanation& explanation, TextOutput& output) {
    TextTable table({{"Relation"}, {"Paths", TextTable::Side::Right}, {"What became of it"}});
    const ModelObject* step = nullptr;
    for (const Mention& mention : explanation.mentions) {
        if (std::exchange(step, mention.step) != mention.step) {
            table.addHeading(pathAndId(*mention.step));
        }
        bool first = true;
        for (const Result& result : mention.results) {
            StyledText what;
            if (mention.results.size() > 1) {
                what.add(std::to_string(result.count) + " × ");
            }
            what.add(resultText(bill, *explanation.item, mention, result));
            table.addRow({first ? relationText(mention) : StyledText(),
                          first ? StyledText(pathsText(mention.paths)) : StyledText(), std::move(what)});
            first = false;
        }
    }
    if (!table.empty()) {
        output.line();
        table.write(output, 2);
    } else {
        output.line(explanation.wholes.empty() ? "no step lists it" : "no step lists it, nor what it is a part of", 1);
    }
}

} // namespace

StyledText resultText(const RecordedBill& bill, const ModelObject& item, const Mention& mention, const Result& result) {
    StyledText text(kPhrases[static_cast<std::size_t>(result.outcome)], styleOf(result.outcome));
    if (result.outcome == Outcome::HiddenFastener) {
        return text.add(whyHidden(bill, item));
    }
    if (!result.step) {
        return text;
    }
    if (result.with) {
        text.add(nameAndId(*result.with)).add(", named again in ");
    }
    if (result.step == mention.step && result.outcome != Outcome::OutsideRoot) {
        text.add("the same step");
    } else {
        text.add(nameAndId(*result.step));
    }
    if (result.whole) {
        text.add(", as part of ").add(nameAndId(*result.whole));
    }
    return text.add(orderPhrase(result));
}

std::string pathsText(double paths) {
    if (paths <= kExactlyCounted) {
        return std::to_string(static_cast<std::uint64_t>(paths));
    }
    return std::isinf(paths) ? "more than 2^1023" : "about 2^" + std::to_string(std::lround(std::log2(paths)));
}

const ModelObject& objectInRow(const RecordedBill& bill, std::uint32_t row) {
    return *bill.occurrences()[bill.rows()[row].occurrence].object;
}

std::string namesAboveRow(const RecordedBill& bill, std::uint32_t row) {
    std::vector<const std::string*> names;
    std::uint32_t above = bill.rows()[row].below;
    for (; above != Occurrence::kNone && names.size() < kNamesAbove; above = bill.rows()[above].below) {
        names.push_back(&objectInRow(bill, above).name());
    }
    std::string text = above != Occurrence::kNone ? "…" : "";
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        text += (text.empty() ? "" : " / ") + **name;
    }
    return text;
}

void writeExplanationsText(const RecordedBill& bill, const std::vector<Explanation>& explanations, TextOutput& output) {
    if (bill.isThinned()) {
        output.line({"Paths multiply: only the occurrences that decide the bill were followed, the others add nothing.",
                     Style::Warning});
        output.line();
    }
    bool first = true;
    for (const Explanation& explanation : explanations) {
        if (!std::exchange(first, false)) {
            output.line();
        }
        output.line(headLine(explanation));
        writePlaces(bill, explanation, output);
        writeWholes(explanation, output);
        writeMentions(bill, explanation, output);
    }
}

} // namespace planner
