// What the reader says of files that are wrong: each line with its place.

#include "PlanText.h"

#include <gtest/gtest.h>

using namespace plantext;

namespace {

struct Case {
    const char* name;
    std::string text;
    std::string faults;
};

void PrintTo(const Case& each, std::ostream* stream) {
    *stream << each.name;
}

std::string nameOf(const testing::TestParamInfo<Case>& info) {
    return info.param.name;
}

/// A plan with one item or one root activity, whose further keys are given.
std::string item(const std::string& keys) {
    return R"({"version":1,"items":[{"id":"a",)" + keys + "}]}";
}
std::string root(const std::string& keys) {
    return R"({"version":1,"items":[{"id":"p","kind":"product"},{"id":"s","kind":"assembly"}],"process":{"id":"r",)" +
           keys + "}}";
}

class Faults : public testing::TestWithParam<Case> {};

TEST_P(Faults, AreToldWithTheirPlaces) {
    EXPECT_EQ(faultsOf(GetParam().text), GetParam().faults);
}

const Case kText[] = {
    {"Empty", "", "p: is empty; expected a JSON object with the plan\n"},
    {"Blank", " \n ",
     "p:2:2: no JSON: syntax error while parsing value - unexpected end of input; expected '[', '{', or a literal\n"},
    {"Truncated", "{\"version\":1,\n\"plan\":\"ab",
     "p:2:10: no JSON: syntax error while parsing value - invalid string: missing closing quote\n"},
    {"NoComma", "{\"version\":1\n \"plan\":\"a\"}",
     "p:2:2: no JSON: syntax error while parsing object - unexpected string literal; expected '}'\n"},
    {"TwoDocuments", "{\"version\":1} {}",
     "p:1:15: no JSON: syntax error while parsing value - unexpected '{'; expected end of input\n"},
    {"ColumnsCountCharacters", "{\"plan\":\"äöü\" 1}",
     "p:1:15: no JSON: syntax error while parsing object - unexpected number literal; expected '}'\n"},
    {"BrokenUtf8", "{\"version\":1,\n\"plan\":\"a\xE4\"}", "p:2:10: byte 0xE4 begins no character; expected UTF-8\n"},
    {"OverlongUtf8", "{\"plan\":\"\xC0\xAF\"}", "p:1:10: byte 0xC0 begins no character; expected UTF-8\n"},
    {"SurrogateInUtf8", "{\"plan\":\"\xED\xA0\x80\"}", "p:1:10: byte 0xED begins no character; expected UTF-8\n"},
    {"TwoSignatures", "\xEF\xBB\xBF\xEF\xBB\xBF{}", "p:1:1: a second signature of UTF-8; expected JSON text\n"},
    {"Utf16", std::string("\xFF\xFE{\0", 4), "p:1:1: the file is in UTF-16 or another wide encoding; expected UTF-8\n"},
    {"Utf16WithoutSignature", std::string("{\0\"\0", 4),
     "p:1:1: the file is in UTF-16 or another wide encoding; expected UTF-8\n"},
    {"NulByte", std::string("{\"plan\":\"a\0b\"}", 14), "p:1:11: a NUL byte; expected JSON text\n"},
    {"HugeNumber", "{\"version\":1e999}", "p:1:12: a number that is too large; expected one up to 1.79e308\n"},
    {"LoneSurrogateEscape", R"({"plan":"\ud800"})",
     "p:1:16: no JSON: syntax error while parsing value - invalid string: surrogate U+D800..U+DBFF must be followed by "
     "U+DC00..U+DFFF\n"},
    {"NoObject", "[{}]", "p:1:1: expected an object with the plan, found a list\n"},
    {"OpeningBrackets", repeated("[", 200000),
     "p:1:1: expected an object with the plan, found a list\n"
     "p:1:200001: no JSON: syntax error while parsing value - unexpected end of input; expected '[', '{', or a "
     "literal\n"},
};
INSTANTIATE_TEST_SUITE_P(Text, Faults, testing::ValuesIn(kText), nameOf);

const Case kValues[] = {
    {"MissingVersion", "{}", "p:1:1: \"version\" is missing; expected 1\n"},
    {"OtherVersion", R"({"version":2})", "p:1:12: expected 1 for \"version\", found 2 (at /version)\n"},
    {"VersionText", R"({"version":"1"})", "p:1:12: expected 1 for \"version\", found a text (at /version)\n"},
    {"UnknownKey", R"({"version":1,"item":[]})",
     "p:1:14: unknown key \"item\"; expected \"plan\", \"version\", \"notes\", \"items\", \"process\", \"resources\" "
     "or \"links\" (at /item)\n"},
    {"TwiceTheSameKey", R"({"version":1,"plan":"a","plan":"b"})",
     "p:1:25: the key \"plan\" stands twice; expected it once (at /plan)\n"},
    {"TwiceTheSameKeyInNotes", R"({"version":1,"notes":{"b":[{"a":1,"\u0061":2}]}})",
     "p:1:35: the key \"a\" stands twice; expected it once (at /notes/b/0/a)\n"},
    {"ListForObject", R"({"version":1,"process":[]})",
     "p:1:24: expected an object with the root activity for \"process\", found a list (at /process)\n"},
    {"NumberForId", R"({"version":1,"items":[{"id":1,"kind":"item"}]})",
     "p:1:29: expected a text for \"id\", found a number (at /items/0/id)\n"},
    {"NullForList", R"({"version":1,"links":null})",
     "p:1:22: expected a list of links for \"links\", found null (at /links)\n"},
    {"ObjectInListOfIds", root(R"("outputs":["p",{}])"),
     "p:1:116: expected an id in \"outputs\", found an object (at /process/outputs/1)\n"},
    {"TripleLink", R"({"version":1,"links":[["a","b","c"]]})",
     "p:1:23: a link with 3 entries; expected a pair of ids (at /links/0)\n"},
    {"MissingIdAndKind", R"({"version":1,"items":[{}]})",
     "p:1:23: \"id\" is missing; expected a text (at /items/0)\n"
     "p:1:23: \"kind\" is missing; expected a text (at /items/0)\n"},
    {"EmptyId", R"({"version":1,"process":{"id":""}})",
     "p:1:30: an empty id; expected a text of one character or more (at /process/id)\n"},
    {"ControlCharacter", R"({"version":1,"plan":"a\u0007"})",
     "p:1:21: the text \"a\\u0007\" holds a control character; expected none but tab and line end (at /plan)\n"},
    {"UnknownKindOfItem", item(R"("kind":"part")"),
     "p:1:40: unknown kind of item \"part\"; expected \"product\", \"assembly\", \"fastener\" or \"item\" (at "
     "/items/0/kind)\n"},
    {"UnknownKindOfActivity", root(R"("children":[{"id":"c","kind":"step"}])"),
     "p:1:130: unknown kind of activity \"step\"; expected \"activity\", \"loading\", \"station\", \"grouping\" or "
     "\"logical\" (at /process/children/0/kind)\n"},
    {"LogicalRoot", root(R"("kind":"logical")"),
     "p:1:108: the root of the process is \"logical\"; expected \"activity\", \"loading\", \"station\" or \"grouping\" "
     "(at "
     "/process/kind)\n"},
    {"KeyOfAnotherKind", item(R"("holds":[],"kind":"product")"),
     "p:1:33: \"holds\" on an item of kind \"product\", which has no such key (at /items/0/holds)\n"},
    {"TwoForms", item(R"("kind":"item","shape":{"box":[1,2,3],"sphere":[1]})"),
     "p:1:70: a second form of the shape; expected one of \"box\", \"cylinder\", \"sphere\" or \"step\" (at "
     "/items/0/shape/sphere)\n"},
    {"NoForm", item(R"("kind":"item","shape":{})"),
     "p:1:55: a shape without a form; expected one of \"box\", \"cylinder\", \"sphere\" or \"step\" (at "
     "/items/0/shape)\n"},
    {"TooFewSizes", item(R"("kind":"item","shape":{"box":[1,2]})"),
     "p:1:62: \"box\" has 2 numbers; expected 3 (at /items/0/shape/box)\n"},
    {"NoSize", item(R"("kind":"item","shape":{"sphere":[0]})"),
     "p:1:65: \"sphere\" has the size 0; expected sizes above 0 (at /items/0/shape/sphere)\n"},
    {"NoStepFile", item(R"("kind":"item","shape":{"step":"","part":"hinge"})"),
     "p:1:63: \"step\" is an empty text; expected the path of a STEP file (at /items/0/shape/step)\n"},
    {"FourNumbersForAPlace", item(R"("kind":"item","place":[1,2,3,4])"),
     "p:1:55: \"place\" has 4 numbers; expected 3, or 6 with the turns (at /items/0/place)\n"},
    {"PointerEscapes", R"({"version":1,"a/b~":1})",
     "p:1:14: unknown key \"a/b~\"; expected \"plan\", \"version\", \"notes\", \"items\", \"process\", \"resources\" "
     "or \"links\" (at /a~1b~0)\n"},
};
INSTANTIATE_TEST_SUITE_P(Values, Faults, testing::ValuesIn(kValues), nameOf);

const Case kReferences[] = {
    {"TakenId", R"({"version":1,"items":[{"id":"a","kind":"item"}],"process":{"id":"a"}})",
     "p:1:65: the id \"a\" is that of an item already; expected one of its own (at /process/id)\n"},
    {"TakenByABehaviour", R"({"version":1,"resources":[{"id":"a","behaviour":{"id":"b"}},{"id":"b"}]})",
     "p:1:67: the id \"b\" is that of a behaviour already; expected one of its own (at /resources/1/id)\n"},
    {"Unknown", root(R"("assigned":["p","q"])"),
     "p:1:117: \"assigned\" names \"q\", which is not in this plan; expected the id of an item (at "
     "/process/assigned/1)\n"},
    {"ActivityForItem",
     R"({"version":1,"items":[{"id":"a","kind":"assembly","holds":["a","r"]}],"process":{"id":"r"}})",
     "p:1:64: \"holds\" names \"r\", which is an activity; expected the id of an item (at /items/0/holds/1)\n"},
    {"ItemInLink", R"({"version":1,"items":[{"id":"a","kind":"item"}],"links":[["a","a"]]})",
     "p:1:59: \"links\" names \"a\", which is an item of kind \"item\"; expected the id of an activity, a resource or "
     "a "
     "behaviour (at /links/0/0)\n"
     "p:1:63: \"links\" names \"a\", which is an item of kind \"item\"; expected the id of an activity, a resource or "
     "a "
     "behaviour (at /links/0/1)\n"},
    {"AssemblyWithoutChildrenAsChild",
     R"({"version":1,"items":[{"id":"p","kind":"product","children":["s"]},)"
     R"({"id":"s","kind":"assembly"}]})",
     "p:1:62: \"children\" names \"s\", which is an item of kind \"assembly\"; expected the id of a product, an "
     "assembly with \"children\", or a resource (at /items/0/children/0)\n"},
    {"ResourceNamedAsChildOfAResource", R"({"version":1,"resources":[{"id":"a"},{"id":"b","children":["a"]}]})",
     "p:1:60: \"children\" names \"a\", which is a resource; expected the id of a product, or an assembly with "
     "\"children\" (at /resources/1/children/0)\n"},
    {"OfWhatWasSkippedNothingIsSaid",
     R"({"version":1,"items":{"x":{"id":"a","kind":"item"}},"process":{"id":"r","items":["a"]}})",
     "p:1:22: expected a list of items for \"items\", found an object (at /items)\n"},
    {"OfAFaultyItemTheSortIsNotAsked",
     R"({"version":1,"items":[{"id":"a","kind":"x"},{"id":"b","kind":"product","children":["a"]}]})",
     "p:1:40: unknown kind of item \"x\"; expected \"product\", \"assembly\", \"fastener\" or \"item\" (at "
     "/items/0/kind)\n"},
};
INSTANTIATE_TEST_SUITE_P(References, Faults, testing::ValuesIn(kReferences), nameOf);

TEST(FaultList, StopsAtTwenty) {
    const std::string lines =
        faultsOf("{\"version\":1,\"process\":{\"id\":\"r\"},\"links\":[" + repeated("[1,2],", 40) + "[\"r\",\"r\"]]}");
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 20) << lines;
}

TEST(FaultList, IsInTheOrderOfThePlaces) {
    const std::string lines = faultsOf(R"({"links":[["a","b"]],"plan":1,"version":1})");
    EXPECT_EQ(lines.find("p:1:12:"), 0U) << lines;
    EXPECT_NE(lines.find("p:1:16:"), std::string::npos) << lines;
    EXPECT_NE(lines.find("p:1:29: expected a text for \"plan\", found a number (at /plan)"), std::string::npos)
        << lines;
}

TEST(FaultList, LeavesOutTheMiddleOfALongPointer) {
    const std::string lines =
        faultsOf(R"({"version":1,"process":)" + repeated(R"({"id":"","children":[)", 50) + repeated("]}", 50) + "}");
    EXPECT_NE(lines.find("/…/"), std::string::npos) << lines;
}

} // namespace
