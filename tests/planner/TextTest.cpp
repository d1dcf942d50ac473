// What all text output shares: words, tables, the writer of JSON.

#include "PlanText.h"

#include "planner/text/JsonWriter.h"
#include "planner/text/ObjectText.h"
#include "planner/text/TextTable.h"
#include "planner/text/Words.h"

#include <gtest/gtest.h>

using namespace planner;
using plantext::printed;

namespace {

TEST(Words, TakeColumnsAsATerminalShowsThem) {
    const struct {
        const char* text;
        std::size_t width;
    } cases[] = {{"", 0}, {"door", 4}, {"Türgriff", 8}, {"e\xCC\x81", 1}, {"ドア", 4}, {"🚗", 2}, {"\xC3", 1}};
    for (const auto& each : cases) {
        EXPECT_EQ(displayWidth(each.text), each.width) << each.text;
    }
    EXPECT_EQ(inLine("a\nb\x1B[1m"), "a\\nb\\x1b[1m");
    EXPECT_EQ(counted(1, "step") + ", " + counted(0, "step") + ", " + counted(2, "assembly", "assemblies"),
              "1 step, 0 steps, 2 assemblies");
}

TEST(TextTables, AlignByDisplayWidthAndColourByMeaning) {
    TextTable table({{"Item"}, {"Number", TextTable::Side::Right}, {"Remark"}});
    table.addRow({{"ドア", Style::Name}, "2"});
    table.addHeading("Further items of a long heading");
    table.addRow({"Tür", "10", "wide"});
    EXPECT_EQ(printed([&](TextSink& sink) {
                  TextOutput output(sink, false);
                  table.write(output, 1);
              }),
              "  Item  Number  Remark\n"
              "  ドア       2\n"
              "Further items of a long heading\n"
              "  Tür       10  wide\n");
    EXPECT_EQ(printed([](TextSink& sink) {
                  TextOutput(sink, true).line({"gone", Style::Gone});
              }),
              "\x1B[31mgone\x1B[0m\n");
}

TEST(ObjectText, NamesComeBeforeIds) {
    const auto plan = plantext::read(R"({"version": 1, "process": {"id": "line", "name": "Door line", "children": [
        {"id": "s2", "kind": "station", "name": "Station 2", "children": [{"id": "fit"}, {"id": "bare", "name": ""}]}]}})");
    EXPECT_EQ(pathAndId(*plan->find("fit")).plain(), "Door line / Station 2 / fit");
    EXPECT_EQ(pathAndId(*plan->find("s2")).plain(), "Door line / Station 2 (s2)");
    EXPECT_EQ(nameAndId(*plan->find("s2")).plain(), "Station 2 (s2)");
    EXPECT_EQ(nameAndId(*plan->find("bare")).plain(), "bare");
    EXPECT_EQ(pathAndId(*plan->find("bare")).plain(), "Door line / Station 2 / bare");
}

TEST(JsonWriter, BreaksLinesAndSetsCommasByItself) {
    EXPECT_EQ(printed([](TextSink& sink) {
                  JsonWriter json(sink);
                  json.beginObject();
                  json.member("text", "a\"b");
                  json.key("list");
                  json.beginArray();
                  json.beginObject(JsonWriter::Layout::Line);
                  json.member("n", 1);
                  json.member("yes", true);
                  json.endObject();
                  json.value(0.5);
                  json.endArray();
                  json.key("none");
                  json.beginArray();
                  json.endArray();
                  json.key("nothing");
                  json.null();
                  json.endObject();
                  json.finish();
              }),
              "{\n"
              "  \"text\": \"a\\\"b\",\n"
              "  \"list\": [\n"
              "    {\"n\": 1, \"yes\": true},\n"
              "    0.5\n"
              "  ],\n"
              "  \"none\": [],\n"
              "  \"nothing\": null\n"
              "}\n");
}

} // namespace
