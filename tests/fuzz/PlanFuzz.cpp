// Plan files: whatever the text, it gives a plan or says what is wrong. A plan is written so that reading gives the
// same.

#include "fuzz/Fuzz.h"
#include "planner/PlanText.h"

#include <nlohmann/json.hpp>

namespace {

void readPlan(const std::string& text) {
    const planner::ReadResult first = planner::parsePlan(text, "p", "title");
    if (!first.plan) {
        fuzz::expectSame("a text without plan and without error: " + text, first.errors.empty() ? "none" : "", "");
        return;
    }
    fuzz::expectSame("no JSON, and read: " + text, nlohmann::json::accept(text) ? "" : "read", "");
    const std::string once = plantext::written(*first.plan);
    const planner::ReadResult second = planner::parsePlan(once, "p", "title");
    if (!second.plan) {
        fuzz::expectSame("what was written isn't read", second.errors.at(0), once);
    }
    fuzz::expectSame("written again", plantext::written(*second.plan), once);
}

void orderNotes(const std::string& text) {
    std::string once = text;
    if (!planner::orderNotes(once)) {
        std::string twice = once;
        fuzz::expectSame("notes of notes are refused: " + once, planner::orderNotes(twice).value_or(""), "");
        fuzz::expectSame("notes of notes", twice, once);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    readPlan(text);
    orderNotes(text);
    return 0;
}
