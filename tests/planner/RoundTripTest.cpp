// Reading and writing again: the same plan, the same bytes.

#include "PlanText.h"

#include "planner/file/PlanWriter.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>

using namespace plantext;

namespace {

struct Case {
    const char* name;
    std::string text;
    std::string form; ///< what is written; empty for the text itself
};

void PrintTo(const Case& each, std::ostream* stream) {
    *stream << each.name;
}

class RoundTrip : public testing::TestWithParam<Case> {};

TEST_P(RoundTrip, GivesTheStandardFormAndKeepsIt) {
    const Case& each = GetParam();
    const std::string once = written(*read(each.text));
    EXPECT_EQ(once, each.form.empty() ? each.text : each.form);
    EXPECT_EQ(written(*read(once)), once);
}

const Case kCases[] = {
    {"NothingButTheVersion", "{\"version\":1}", "{\n  \"version\": 1\n}\n"},
    {"EmptyListsStay", "{\n  \"version\": 1,\n  \"items\": [],\n  \"resources\": [],\n  \"links\": []\n}\n", ""},
    {"KeysComeInOrder", R"({"links":[["r","r"]],"process":{"children":[],"id":"r"},"version":1.0,"plan":"T"})",
     R"({
  "plan": "T",
  "version": 1,
  "process": {"id": "r", "children": []},
  "links": [
    ["r", "r"]
  ]
}
)"},
    {"ItemsKeepWhatTheySay", R"({
  "version": 1,
  "items": [
    {"id": "p", "name": "p", "kind": "product", "children": []},
    {"id": "a", "kind": "assembly", "children": ["p", "p"], "holds": ["a"]},
    {"id": "f", "name": "", "kind": "fastener", "type": "Bolt", "assigned": false, "joins": ["p", "p"]},
    {"id": "i", "kind": "item", "shape": {"cylinder": [0.5, 1e+30]}, "place": [-1, 2.5, 3, 0, 90, 180]},
    {"id": "s", "kind": "item", "shape": {"step": "a b.stp", "part": "P", "notes": 1}}
  ]
}
)",
     ""},
    {"ActivitiesNest", R"({
  "version": 1,
  "items": [
    {"id": "p", "kind": "product"}
  ],
  "process": {"id": "r", "kind": "activity", "type": "T", "first_assigned": ["p"], "assigned": [], "removed": ["p"], "items": ["p"], "outputs": ["p"], "children": [
    {"id": "a", "children": [
      {"id": "b", "kind": "logical"}
    ]},
    {"id": "c", "children": []}
  ]}
}
)",
     ""},
    {"ResourcesNest", R"({
  "version": 1,
  "items": [
    {"id": "p", "kind": "product"}
  ],
  "resources": [
    {"id": "r", "behaviour": {"id": "b", "assigned": ["p"], "outputs": [], "activities": [
      {"id": "a", "children": [
        {"id": "c"}
      ]}
    ]}, "children": [
      "p",
      {"id": "s", "behaviour": {}, "children": []},
      {"id": "t", "behaviour": {"activities": []}}
    ]},
    {"id": "u"}
  ]
}
)",
     ""},
    {"NotesStayValueForValue", R"({
  "version": 1,
  "notes": {"n": [1.50, -0, 1e5, 123456789012345678901234567890], "t": "\u00e4\/", "e": {}, "l": [[], null, true]},
  "process": {"id": "r", "notes": "text"}
}
)",
     ""},
    {"TextsAreEscapedAsLittleAsCanBe", "{\"version\":1,\"plan\":\"\\u00e4\\t\\n\\r\\\"\\\\\\/\\u007f\"}",
     "{\n  \"plan\": \"ä\\t\\n\\r\\\"\\\\/\x7f\",\n  \"version\": 1\n}\n"},
    {"ASignatureIsReadOver", "\xEF\xBB\xBF{\"version\":1}", "{\n  \"version\": 1\n}\n"},
    {"EscapedReferencesAreTheSameId",
     R"({"version":1,"items":[{"id":"\u0061\\\"","kind":"item"}],"process":{"id":"r","items":["a\\\""]}})",
     R"({
  "version": 1,
  "items": [
    {"id": "a\\\"", "kind": "item"}
  ],
  "process": {"id": "r", "items": ["a\\\""]}
}
)"},
};
INSTANTIATE_TEST_SUITE_P(Forms, RoundTrip, testing::ValuesIn(kCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST(DeepPlan, IsReadWrittenAndEndedWithoutDepth) {
    constexpr int kDepth = 100000;
    std::string nested = "{\"version\":1,\"process\":{\"id\":\"r\"";
    for (int i = 0; i < kDepth; ++i) {
        nested += ",\"children\":[{\"id\":\"a" + std::to_string(i) + "\"";
    }
    nested += "}" + repeated("]}", kDepth) + "}";
    const std::string once = written(*read(nested));
    EXPECT_LT(once.size(), std::size_t{kDepth} * 1000);
    EXPECT_TRUE(written(*read(once)) == once);
}

TEST(DeepNotes, AreKept) {
    const std::string notes = repeated("[", 200000) + repeated("]", 200000);
    EXPECT_TRUE(written(*read("{\"version\":1,\"notes\":" + notes + "}")) ==
                "{\n  \"version\": 1,\n  \"notes\": " + notes + "\n}\n");
}

TEST(PlanFile, KeepsItsPermissionsAndLinks) {
    const auto plan = read("{\"version\":1}");
    const std::string path = makeFile("kept", "old");
    const std::string link = path + "-link";
    ::chmod(path.c_str(), 0640);
    std::filesystem::create_symlink(path, link);
    EXPECT_EQ(planner::writePlanFile(*plan, link), std::nullopt);
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(contentOf(path), "{\n  \"version\": 1\n}\n");
    std::filesystem::remove(link);
}

} // namespace
