// Spreadsheets, read back as the parts of their file.

#include "PlanText.h"
#include "Program.h"

#include <gtest/gtest.h>

using namespace plantext;

namespace {

/// Names that a spreadsheet, XML or the name of a sheet might trip over; more levels than an outline knows.
std::string plan() {
    std::string items = R"({"id": "f", "kind": "fastener", "type": "Rivet", "name": "=1+1"},
        {"id": "q", "kind": "product", "name": "<b>\"Q\" & \ufffe\n</b>"},
        {"id": "l0", "kind": "product", "name": "Level 9"})";
    for (int i = 1; i < 9; ++i) {
        items += ",{\"id\": \"l" + std::to_string(i) + "\", \"kind\": \"product\", \"children\": [\"l" +
                 std::to_string(i - 1) + "\"]}";
    }
    return R"({"version": 1, "items": [)" + items +
           R"(], "process": {"id": "line", "name": "Line [1/2]: a name that is a little too long",
            "first_assigned": ["q", "l8"], "items": ["f"]}})";
}

bool isLeftOut(const Outcome& ran) {
    return ran.errors.find("without libxlsxwriter") != std::string::npos;
}

TEST(Sheet, HasWhatTheBillHas) {
    const std::string file = makeFile("xlsx", "old");
    const Outcome ran = run("bom % --format xlsx -o " + file, plan());
    if (isLeftOut(ran)) {
        GTEST_SKIP() << ran.errors;
    }
    EXPECT_EQ(ran.status, 0) << ran.errors;
    const Outcome told = runShell("python3 " SHEET_READER " " + file);
    EXPECT_EQ(told.errors, "");
    EXPECT_EQ(told.output, R"(Line  1 2   a name that is a li frozen: 1 frozen filter: A1:E12 sums below: 0
0 'Level' 'Name' 'Kind' 'Type' 'Id'
0 1 '<b>"Q" & \ufffd\n</b>' 'product' 'q'
0 1 'l8' 'product' 'l8'
1 2 1>'l7' 'product' 'l7'
2 3 2>'l6' 'product' 'l6'
3 4 3>'l5' 'product' 'l5'
4 5 4>'l4' 'product' 'l4'
5 6 5>'l3' 'product' 'l3'
6 7 6>'l2' 'product' 'l2'
7 8 7>'l1' 'product' 'l1'
7 9 8>'Level 9' 'product' 'l0'
0 1 '=1+1' 'fastener' 'Rivet' 'f'
)");
}

TEST(Sheet, HasTheKits) {
    const std::string file = makeFile("xlsx", "");
    const Outcome ran = run("kits % --format xlsx -o " + file,
                            R"({"version": 1, "items": [{"id": "p", "kind": "product", "name": "P"},
                              {"id": "r", "kind": "fastener", "type": "Rivet"}], "process": {"id": "line", "children": [
                              {"id": "s", "kind": "station", "name": "S", "children": [
                                {"id": "l", "kind": "loading", "first_assigned": ["p", "p"], "items": ["r"]}]}]}})");
    if (isLeftOut(ran)) {
        GTEST_SKIP() << ran.errors;
    }
    ASSERT_EQ(ran.status, 0) << ran.errors;
    EXPECT_EQ(runShell("python3 " SHEET_READER " " + file).output,
              R"(line frozen: 1 frozen filter: A1:F4 sums below: 0
0 'Place or item' 'What' 'Number' 'Type' 'Kind' 'Id'
0 'line / S' 'station' 's'
1 1>'P' 'brings in' 2 'product' 'p'
1 1>'r' 'sets' 1 'Rivet' 'fastener' 'r'
Kits against bill frozen: 1 frozen filter: A1:F3 sums below: 0
0 'Item' 'In kits' 'In bill' 'Kind' 'Id' 'Reason'
0 'P' 2 0 'product' 'p' 'first assigned in l: never reached: no way leads from the step to the end of the flow'
0 'r' 1 0 'fastener' 'r' 'fastened in l: never reached: no way leads from the step to the end of the flow'
)");
}

TEST(Sheet, IsCompleteOrNotThere) {
    const struct {
        const char* arguments;
        const char* error;
    } cases[] = {
        {"bom % --format xlsx", "planner: a spreadsheet isn't written to standard output; name a file with --output\n"},
        {"bom % --format xlsx -o /dev/full", "planner: /dev/full can't be written: No space left on device\n"},
        {"bom % --format xlsx -o /none/x.xlsx", "planner: /none/x.xlsx can't be written: No such file or directory\n"},
        {"bom % --format xlsx -o %", "planner: --output names the plan itself; expected another file\n"}};
    for (const auto& each : cases) {
        const Outcome ran = run(each.arguments, plan());
        if (isLeftOut(ran)) {
            GTEST_SKIP() << ran.errors;
        }
        EXPECT_EQ(ran.status, 2) << each.arguments;
        EXPECT_EQ(ran.errors, each.error);
    }
}

} // namespace
