#pragma once

#include "planner/questions/explain/Explain.h"
#include "planner/text/JsonWriter.h"
#include "planner/text/StyledText.h"

#include <string>
#include <vector>

namespace planner {

/// For people: each item with its places in the bill and a line for each thing that became of a mention.
void writeExplanationsText(const RecordedBill& bill, const std::vector<Explanation>& explanations, TextOutput& output);

/// For programs: see docs/explain.schema.json.
void writeExplanationsJson(const RecordedBill& bill, const std::vector<Explanation>& explanations, TextSink& sink);

/// What became of some occurrences of a mention of an item, as a sentence without its first capital and its full stop.
StyledText resultText(const RecordedBill& bill, const ModelObject& item, const Mention& mention, const Result& result);

/// A number of paths: exact as long as a double is, "about 2^60" beyond.
std::string pathsText(double paths);

/// The element of the bill in a row, counting from 0: what it shows, and the names of those above it, from the top.
const ModelObject& objectInRow(const RecordedBill& bill, std::uint32_t row);
std::string namesAboveRow(const RecordedBill& bill, std::uint32_t row);

} // namespace planner
