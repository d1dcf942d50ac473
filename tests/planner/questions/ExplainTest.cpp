// Explanations: what becomes of mentions in small plans, and the bill of random plans built from explanations alone.

#include "PlanDrawing.h"
#include "RandomDrawing.h"
#include "SchemaCheck.h"

#include "planner/PlanText.h"
#include "planner/bill/Bill.h"
#include "planner/questions/explain/ExplainFormats.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>

using namespace planner;
using nlohmann::json;

namespace {

json explainAll(const Plan& plan, const RecordedBill& bill) {
    const std::vector<const ModelObject*> items(plan.items.begin(), plan.items.end());
    const auto explanations = explain(plan, bill, items);
    return json::parse(plantext::printed([&](TextSink& sink) { writeExplanationsJson(bill, explanations, sink); }));
}

/// What became of the mentions of an item: "S1 first_assigned: taken-away S2 later; ...".
std::string told(const json& item) {
    std::string text;
    for (const json& mention : item["mentions"]) {
        text += (text.empty() ? "" : "; ") + mention["step"]["id"].get<std::string>() + ' ' +
                mention["relation"].get<std::string>();
        text += mention.contains("part_of") ? " of " + mention["part_of"]["id"].get<std::string>() : "";
        for (const json& result : mention["results"]) {
            text += ": " + result["outcome"].get<std::string>();
            text += result.contains("step") ? ' ' + result["step"]["id"].get<std::string>() : "";
            text += result.contains("order") ? ' ' + result["order"].get<std::string>() : "";
            text += result.contains("part_of") ? " of " + result["part_of"]["id"].get<std::string>() : "";
            text += result["count"] > 1 ? " x" + std::to_string(result["count"].get<int>()) : "";
        }
    }
    return text;
}

TEST(Explanations, SayWhatBecameOfEachMention) {
    const struct {
        const char* plan;
        const char* item;
        const char* told;
    } cases[] = {
        {"S1: +P | S2", "P", "S1 first_assigned: stands"},
        {"S1: +P | S2: -P", "P", "S1 first_assigned: taken-away S2 later; S2 removed: takes-away S1 earlier"},
        {"S1: +P | S2: -P | S3: =P", "P",
         "S1 first_assigned: stands; S2 removed: takes-away S3 later; S3 assigned: taken-away S2 earlier"},
        {"S1: +P | S2: +P", "P", "S1 first_assigned: named-in S2 later; S2 first_assigned: stands"},
        {"S1: +P | S2: =P", "P", "S1 first_assigned: stands; S2 assigned: first-assigned-in S1 earlier"},
        {"S1: =P | S2: =P", "P", "S1 assigned: only-worked-on; S2 assigned: assigned-in S1 earlier"},
        {"S1: -P | S2", "P", "S1 removed: nothing-to-take-away"},
        {"S1@station { T1: +P | T2 } | S2", "P", "T1 first_assigned: left-out-in-station S1"},
        {"S0: +P , S1 | S2", "P", "S0 first_assigned: not-reached"},
        {"S0: +A[B[P]] , S1 | S2", "P", "S0 first_assigned of B: not-reached"},
        {"S0: >A[A P] , S1 | S2: >A", "P", "S2 outputs of A: stands; S0 outputs of A: not-reached"},
        {"S1@station { T1: -P(Q) | T2 } | S2", "Q", "T1 removed of P: left-out-in-station S1"},
        {"S1: *w{Bolt} | S2", "w", "S1 fastener: hidden-fastener"},
        {"S1: *w | S2: +P", "w", "S1 fastener: stands"},
        {"S1: *P | S2", "P", "S1 items: no-fastener"},
        {"S1: +P | S2: >A[P]", "P", "S1 first_assigned: named-in S2 later of A; S2 outputs of A: stands"},
        {"S1: >A[P] | S2: >A", "P", "S1 outputs of A: went-with-whole S2 later; S2 outputs of A: stands"},
        {"S1: +P | S2, S3 | S4 ; S1>S3 S2>S4", "P", "S1 first_assigned: stands: named-in S1 same"},
    };
    for (const auto& each : cases) {
        const auto plan = plandrawing::draw(each.plan);
        const json all = explainAll(*plan, RecordedBill(*plan->process()));
        for (const json& item : all["items"]) {
            if (item["id"] == each.item) {
                EXPECT_EQ(told(item), each.told) << each.plan;
            }
        }
    }
}

/// The lines of the bill, "level id", as the explanations have them. Every line is explained once, by a mention.
std::vector<std::string> linesOf(const json& explained) {
    std::map<int, std::string> lines;
    std::multiset<int> standing;
    for (const json& item : explained["items"]) {
        for (const json& line : item["bill"]) {
            lines[line["line"]] = std::to_string(line["level"].get<int>()) + ' ' + item["id"].get<std::string>();
        }
        for (const json& mention : item["mentions"]) {
            for (const json& result : mention["results"]) {
                const json stands = result.value("lines", json::array());
                standing.insert(stands.begin(), stands.end());
                EXPECT_TRUE(result["outcome"] != "stands" || result["count"] == stands.size());
            }
        }
    }
    std::vector<std::string> texts;
    for (const auto& [line, text] : lines) {
        EXPECT_EQ(line, static_cast<int>(texts.size()) + 1);
        EXPECT_EQ(standing.count(line), 1U);
        texts.push_back(text);
    }
    EXPECT_EQ(standing.size(), texts.size());
    return texts;
}

std::vector<std::string> linesOfBill(ModelObject& root) {
    const auto generator = VXMMakeBomGenerator(&root);
    const DOM_Document document = generator->GetBom(0);
    std::vector<std::string> lines;
    for (const BillElement& element : readBill(document, generator->GetPreviewObjects())) {
        lines.push_back(std::to_string(element.level) + ' ' + element.object->id());
    }
    return lines;
}

/// On plans without loops each occurrence of a mention has one outcome, and there is one for each entry on each path.
void expectEveryOccurrenceTold(const json& explained, std::set<std::string>& outcomes) {
    for (const json& item : explained["items"]) {
        for (const json& mention : item["mentions"]) {
            int count = 0;
            for (const json& result : mention["results"]) {
                outcomes.insert(result["outcome"].get<std::string>());
                count += result["count"].get<int>();
            }
            if (count > 0 && mention.contains("entries")) {
                EXPECT_EQ(count, mention["entries"].get<int>() * mention["paths"].get<int>()) << item["id"] << mention;
            }
        }
    }
}

TEST(Explanations, AreTheBillOfRandomPlans) {
    const json schema = json::parse(plantext::contentOf(DOCS "/explain.schema.json"));
    std::set<std::string> outcomes;
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        const auto plan = plandrawing::draw(plandrawing::RandomDrawing(seed).make());
        const json explained = explainAll(*plan, RecordedBill(*plan->process()));
        EXPECT_EQ(linesOf(explained), linesOfBill(*plan->process()));
        EXPECT_EQ(schemacheck::faultsOf(explained, schema), "");
        if (!RecordedBill(*plan->process()).flow().hasLoop()) {
            expectEveryOccurrenceTold(explained, outcomes);
        }
    }
    EXPECT_GE(outcomes.size(), kOutcomes - 3);
}

TEST(Explanations, AreTheBillOfTheLegacyAlgorithm) {
    ::setenv("FAB_BOM_OLD_ALGORITHM", "TRUE", 1);
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        const auto plan = plandrawing::draw(plandrawing::RandomDrawing(seed).make());
        EXPECT_EQ(linesOf(explainAll(*plan, RecordedBill(*plan->process()))), linesOfBill(*plan->process()));
    }
    ::unsetenv("FAB_BOM_OLD_ALGORITHM");
}

TEST(Explanations, AreTheBillOfTheExamplesAndOfResources) {
    for (const auto& [file, root] : {std::pair("door-line", "door-line"), std::pair("robot-cell", "cell")}) {
        const auto plan = plantext::read(plantext::contentOf(std::string(EXAMPLES "/") + file + ".plan.json"));
        ModelObject& analysed = *plan->find(root);
        EXPECT_EQ(linesOf(explainAll(*plan, RecordedBill(analysed))), linesOfBill(analysed));
        EXPECT_FALSE(linesOfBill(analysed).empty());
    }
}

TEST(Explanations, ReadAsText) {
    const auto plan = plandrawing::draw("S1: +P | S2: >A[P] -J | S3: +J");
    const RecordedBill bill(*plan->process());
    std::vector<const ModelObject*> items = itemsCalled(*plan, "P");
    items.push_back(itemsCalled(*plan, "J").front());
    EXPECT_EQ(plantext::printed([&](TextSink& sink) {
                  TextOutput output(sink, false);
                  writeExplanationsText(bill, explain(*plan, bill, items), output);
              }),
              R"(P, product: in the bill
  line 2, below A
  part of A

    Relation               Paths  What became of it
  R / S1
    first assigned             1  dropped: named again in S2, as part of A, which comes later
  R / S2
    put out, as part of A      1  stands in the bill

J, product: not in the bill

    Relation        Paths  What became of it
  R / S2
    removed             1  takes away the assignment in S3, which comes later
  R / S3
    first assigned      1  taken away by the removal in S2, which comes before it
)");
    EXPECT_TRUE(itemsCalled(*plan, "S1").empty());
}

TEST(Explanations, AreTheBillWherePathsMultiply) {
    int thinned = 0;
    for (unsigned seed = 1; seed <= 150; ++seed) {
        SCOPED_TRACE(seed);
        const auto plan = plandrawing::draw(plandrawing::RandomDrawing(seed).make());
        try {
            const RecordedBill bill(*plan->process(), 60);
            EXPECT_EQ(linesOf(explainAll(*plan, bill)), linesOfBill(*plan->process()));
            thinned += bill.isThinned() ? 1 : 0;
        } catch (const TooManyOccurrences&) { // structures that can't be thinned out
        }
    }
    EXPECT_GT(thinned, 10);
}

TEST(Explanations, CountPathsThatNobodyCouldFollow) {
    std::string drawing = "A0: +P | B0, C0 | A1: =w";
    std::string links = " ; A0>C0 B0>A1";
    for (int i = 1; i < 60; ++i) {
        const std::string n = std::to_string(i);
        const std::string next = std::to_string(i + 1);
        drawing += " | B" + n + ", C" + n + " | A" + next + (i == 59 ? ": =P" : "");
        links += " A" + n + ">C" + n + " B" + n + ">A" + next;
    }
    const auto plan = plandrawing::draw(drawing + links);
    const RecordedBill bill(*plan->process());
    EXPECT_TRUE(bill.isThinned());
    const json item = explainAll(*plan, bill)["items"][0];
    EXPECT_EQ(told(item), "A0 first_assigned: stands; A60 assigned: adds-nothing");
    EXPECT_EQ(item["mentions"][0]["paths"], "about 2^60");
    EXPECT_EQ(pathsText(9007199254740992.0), "9007199254740992");
}

} // namespace
