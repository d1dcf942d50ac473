// Answers as text and JSON, their published schemas, and the documentation of what they say.

#include "planner/PlanText.h"
#include "planner/questions/SchemaCheck.h"
#include "planner/questions/check/CheckFormats.h"

#include <gtest/gtest.h>

using namespace planner;
using nlohmann::json;

namespace {

constexpr const char* kPlan = R"({"version": 1, "notes": {"id": "b"}, "items": [
  {"id": "p", "kind": "product", "name": "Pin \u00fc"}, {"name": "{\"id\": \"a\"}", "id": "w\u0065ld", "kind": "fastener"}],
 "process": {"id": "line", "name": "Line", "children": [
    {"id": "a", "removed": ["p"]},   {"notes": [{"id": "a"}], "id": "b"}]},
 "links": [["a", "b"], ["b", "a"]]})";

/// What the writer puts on a sink.
template <class Write>
std::string written(Write write) {
    std::FILE* const file = std::tmpfile();
    TextSink sink(::fileno(file));
    write(sink);
    EXPECT_EQ(sink.finish(), 0);
    std::string text(static_cast<std::size_t>(std::ftell(file)), '\0');
    std::rewind(file);
    text.resize(std::fread(text.data(), 1, text.size(), file));
    std::fclose(file);
    return text;
}

struct Checked {
    explicit Checked(const char* given = kPlan) : text(given) {}

    const char* text;
    std::unique_ptr<Plan> plan = plantext::read(text);
    std::vector<Finding> findings = checkPlan(*plan, *plan->process());
    CheckReport report{*plan->process(), "f.json", findings, placesOfObjects(text, idsOf(findings))};
};

TEST(CheckText, GivesPlaceCodeMessageAndAdvice) {
    const Checked checked;
    EXPECT_EQ(written([&](TextSink& sink) {
                  TextOutput output(sink, false);
                  writeCheckText(checked.report, output);
              }),
              R"(Line: 4 findings

Links that lead round in a circle (loop-in-links)
  f.json:4:5  "a" → "b" → "a"
              → take out the link from "b" to "a", or another of this loop

Removals of what isn't assigned (removal-without-assignment)
  f.json:4:5  "a" removes "Pin ü" (p), which no step assigns
              → assign it at a step before, or take it out of "removed"; what came in as a part of something goes with the whole

Fasteners of a type that no bill shows (unknown-fastener-type)
  f.json:2:57  "{\"id\": \"a\"}" (weld) has no type, so no bill shows it
               → use one of Adhesive Curve, Adhesive Point, Arc Weld, Clinch, Glue Bead, Glue Drop, Rivet, Sealant Curve, Sealant Point, Screw, Spot Weld, Stud

Items that nobody mentions (unmentioned-item)
  f.json:2:57  "{\"id\": \"a\"}" (weld) is named by no step and is a part of nothing
               → list it where it comes in, or take it out of the plan
)");
}

TEST(CheckJson, IsAsItsSchemaSays) {
    const Checked checked;
    const json told = json::parse(written([&](TextSink& sink) { writeCheckJson(checked.report, sink); }));
    const json schema = json::parse(plantext::contentOf(DOCS "/check.schema.json"));
    EXPECT_EQ(schemacheck::faultsOf(told, schema), "");
    EXPECT_EQ(told["findings"][0]["place"], json::parse(R"({"line": 4, "column": 5})"));
    EXPECT_EQ(told["findings"][0]["path"][1]["id"], "b");
    EXPECT_EQ(told["findings"][1]["related"][0], json::parse(R"({"id": "p", "name": "Pin ü", "kind": "product"})"));
    const auto codes = schema["properties"]["findings"]["items"]["properties"]["code"]["enum"];
    ASSERT_EQ(codes.size(), kCheckRules.size());
    for (std::size_t i = 0; i < kCheckRules.size(); ++i) {
        EXPECT_EQ(codes[i], kCheckRules[i].word);
    }
}

TEST(CheckJson, PlacesAProcessThatIsntThereAtAResource) {
    const Checked checked(R"({"version": 1, "items": [{"id": "p", "kind": "product"}],
 "resources": [{"id": "r"}, {"id": "cell", "behaviour": {"assigned": ["p"]}}]})");
    const json told = json::parse(written([&](TextSink& sink) { writeCheckJson(checked.report, sink); }));
    ASSERT_EQ(told["findings"].size(), 1U);
    EXPECT_EQ(told["findings"][0]["code"], "process-without-steps");
    EXPECT_EQ(told["findings"][0]["place"], json::parse(R"({"line": 2, "column": 29})"));
}

TEST(CheckCodes, AreDocumentedAndStandInTheirOrder) {
    const std::string page = plantext::contentOf(DOCS "/checks.md");
    std::size_t last = 0;
    for (const CheckRule& rule : kCheckRules) {
        EXPECT_EQ(&ruleOf(rule.code), &rule);
        const std::size_t at = page.find("\n### `" + std::string(rule.word) + "`\n");
        ASSERT_NE(at, std::string::npos) << rule.word;
        EXPECT_GT(at, last);
        last = at;
    }
}

} // namespace
