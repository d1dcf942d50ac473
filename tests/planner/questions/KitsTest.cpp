// Kits: what is in them, and how they add up with the bill.

#include "PlanDrawing.h"
#include "RandomDrawing.h"
#include "SchemaCheck.h"

#include "planner/PlanText.h"
#include "planner/questions/explain/ExplainFormats.h"
#include "planner/questions/kits/KitsFormats.h"
#include "planner/questions/kits/Structure.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

using namespace planner;
using nlohmann::json;

namespace {

std::string kitsText(const char* drawing, KitsBy by, KitStructure structure = KitStructure::LeftOut) {
    const auto plan = plandrawing::draw(drawing);
    const RecordedBill bill(*plan->process());
    return plantext::printed([&](TextSink& sink) {
        TextOutput output(sink, false);
        writeKitsText(kitsOf(*plan, bill, by), structure, output);
    });
}

constexpr const char* kLine =
    "S1@station { T1@loading: +J +P +P | T2: *w{Screw} *v{Screw} } | S2: -J { U1: +A[Q] } | S3: >B[P A]";

TEST(Kits, AreMadeForStationsAndAddUpWithTheBill) {
    EXPECT_EQ(kitsText(kLine, KitsBy::Station, KitStructure::Shown), R"(R / S1
  brings in
    1  J  product
    2  P  product
  sets
    2  Screw

R / S2
  brings in
    1  A    assembly
         Q  product
  takes away
    1  J  product

R / S3
  puts out
    1  B  assembly

3 kits: 4 brought in with 1 part, 2 fasteners, 1 put out. The bill has 4 elements.
4 items don't add up:
  Kits  Bill  Item  Reason
     1     0  J     first assigned in T1: taken away by the removal in S2
     2     1  P     first assigned in T1: dropped: named again in S3, as part of B, which comes later
     1     0  w     fastened in T2: left out: inside S1, where only what loading activities bring in counts
     1     0  v     fastened in T2: left out: inside S1, where only what loading activities bring in counts
)");
}

TEST(Kits, AreMadeForSteps) {
    EXPECT_EQ(kitsText("S1 { U2: +Q , U1: +P | U3 } | S2: >P", KitsBy::Step), R"(R / S1 / U1
  brings in
    1  P  product

R / S2
  puts out
    1  P  product

R / S1 / U2
  brings in
    1  Q  product

3 kits: 2 brought in with 0 parts, 0 fasteners, 1 put out. The bill has 1 element.
2 items don't add up:
  Kits  Bill  Item  Reason
     1     0  Q     first assigned in U2: never reached: no way leads from the step to the end of the flow
     2     1  P     first assigned in U1: dropped: named again in S2, which comes later
)");
}

TEST(Kits, SayHowManyReasonsMoreThereAre) {
    const std::string text = kitsText("S1: +P | S2: +P | S3: +P | S4: +P | S5: +P | S6: >P", KitsBy::Step);
    EXPECT_NE(text.find("S3: dropped: named again in S6, which comes later\n                    and 2 more\n"),
              std::string::npos)
        << text;
}

/// A plan whose products i0, i1, … have the children that are given, in a step that puts the first of them in.
std::unique_ptr<Plan> planOf(const std::vector<std::vector<std::size_t>>& children) {
    json items = json::array();
    for (std::size_t i = 0; i < children.size(); ++i) {
        items.push_back({{"id", "i" + std::to_string(i)}, {"kind", "product"}, {"children", json::array()}});
        for (const std::size_t child : children[i]) {
            items.back()["children"].push_back("i" + std::to_string(child));
        }
    }
    return plantext::read(json{{"version", 1},
                               {"items", items},
                               {"process", {{"id", "r"}, {"children", {{{"id", "s"}, {"first_assigned", {"i0"}}}}}}}}
                              .dump());
}

TEST(Structures, AreCountedAsTheyUnfoldAlsoInLoops) {
    std::mt19937 random(7);
    for (int round = 0; round < 100; ++round) {
        std::vector<std::vector<std::size_t>> children(7);
        for (std::size_t edges = 5 + random() % 10; edges > 0; --edges) {
            children[random() % 7].push_back(random() % 7);
        }
        const auto plan = planOf(children);
        std::map<const ModelObject*, std::size_t> unfolded;
        for (const std::size_t times : {2U, 3U}) {
            EXPECT_TRUE(visitStructure(*plan->items.entries()[times],
                                       [&](const ModelObject& part, int) { unfolded[&part] += times; }));
        }
        std::map<const ModelObject*, std::size_t> counted;
        for (const KitItem& part : partsOf({{plan->items.entries()[2], 2}, {plan->items.entries()[3], 3}})) {
            counted[part.item] = part.number;
        }
        EXPECT_EQ(counted, unfolded) << round;
    }
}

/// Structures that nobody could unfold: a part that is held twice on each level, and what holds all of each other.
TEST(Structures, AreCountedOnceHoweverOftenTheyAreShared) {
    std::vector<std::vector<std::size_t>> shared(70);
    for (std::size_t i = 1; i < shared.size(); ++i) {
        shared[i - 1] = {i, i};
    }
    const std::vector<std::size_t> all{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    for (const auto& children : {shared, std::vector(all.size(), all)}) {
        const auto plan = planOf(children);
        const RecordedBill bill(*plan->process());
        const Kits kits = kitsOf(*plan, bill, KitsBy::Station);
        EXPECT_EQ(kits.parts, kCountless);
        ASSERT_FALSE(kits.differences.empty());
        EXPECT_EQ(kits.differences.back().inKits, kCountless);
        std::string text = plantext::printed([&](TextSink& sink) {
            TextOutput output(sink, false);
            writeKitsText(kits, KitStructure::Shown, output);
        });
        EXPECT_NE(text.find("\n         and more\n"), std::string::npos);
        EXPECT_LT(std::count(text.begin(), text.end(), '\n'), 100'200);
        text = plantext::printed(
            [&](TextSink& sink) { writeKitsJson(kits, *plan->process(), KitStructure::Shown, sink); });
        EXPECT_NE(text.find("\"has_more_structure\": true"), std::string::npos);
    }
}

/// How often each item is in kits that tell their structure.
std::map<std::string, int> countsOf(const json& kits) {
    std::map<std::string, int> counts;
    for (const json& kit : kits["kits"]) {
        for (const json& entry : kit["brings_in"]) {
            counts[entry["id"]] += entry["number"].get<int>();
            for (const json& part : entry["structure"]) {
                counts[part["id"]] += entry["number"].get<int>();
            }
        }
        for (const json& entry : kit["puts_out"]) {
            counts[entry["id"]] += entry["number"].get<int>();
        }
        for (const json& type : kit["fasteners"]) {
            for (const json& entry : type["items"]) {
                counts[entry["id"]] += entry["number"].get<int>();
            }
        }
    }
    return counts;
}

TEST(Kits, DifferFromTheBillOnlyWhereTheySaySo) {
    const json schema = json::parse(plantext::contentOf(DOCS "/kits.schema.json"));
    std::size_t differences = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        const auto plan = plandrawing::draw(plandrawing::RandomDrawing(seed).make());
        const RecordedBill bill(*plan->process());
        std::map<std::string, int> inBill;
        for (std::uint32_t row = 0; row < bill.rows().size(); ++row) {
            ++inBill[objectInRow(bill, row).id()];
        }
        std::map<std::string, int> total;
        for (const KitsBy by : {KitsBy::Station, KitsBy::Step}) {
            const Kits kits = kitsOf(*plan, bill, by);
            const json told = json::parse(plantext::printed(
                [&](TextSink& sink) { writeKitsJson(kits, *plan->process(), KitStructure::Shown, sink); }));
            EXPECT_EQ(schemacheck::faultsOf(told, schema), "");
            std::map<std::string, int> counts = countsOf(told);
            EXPECT_TRUE(total.empty() || total == counts);
            total = counts;
            for (const json& each : told["differences"]) {
                EXPECT_EQ(each["in_kits"], counts[each["id"]]);
                EXPECT_EQ(each["in_bill"], inBill[each["id"]]);
                EXPECT_NE(each["in_kits"], each["in_bill"]);
                EXPECT_FALSE(each["reasons"].empty());
                counts[each["id"]] = each["in_bill"];
                ++differences;
            }
            std::erase_if(counts, [](const auto& each) { return each.second == 0; });
            std::map<std::string, int> shown = inBill;
            std::erase_if(shown, [](const auto& each) { return each.second == 0; });
            EXPECT_EQ(counts, shown);
        }
    }
    EXPECT_GT(differences, 200U);
}

} // namespace
