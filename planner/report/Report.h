#pragma once

#include "planner/file/FilePlace.h"
#include "planner/file/TextSink.h"
#include "planner/flow/FlowSvg.h"
#include "planner/questions/check/Check.h"
#include "planner/questions/kits/Kits.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace planner {

/// What a report tells of a plan.
struct Report {
    const ModelObject& root;
    std::string file; ///< what the plan was read from
    Bill bill = {};
    std::optional<std::string> remark = {}; ///< what a person should know of the bill
    std::vector<Finding> findings = {};
    std::unordered_map<std::string, FilePlace> places = {}; ///< of findings, by id
    std::optional<Kits> kits = {};
    std::string kitsNote = {}; ///< why there are no kits
    FlowPicture flow = {};
    std::string flowNote = {}; ///< what the picture leaves out, or why there is none
};

/// Writes a page of HTML that needs nothing besides itself: the bill as a tree with search, the kits, the findings, the
/// flow. Its rows are made in the browser when they are opened; "#search=text" behind its address searches at once.
/// Texts of the plan stay texts, whatever stands in them.
void writeReport(const Report& report, TextSink& sink);

/// Writes what the page's script shows, as JSON in which no "<" stands.
void writeReportData(const Report& report, TextSink& sink);

} // namespace planner
