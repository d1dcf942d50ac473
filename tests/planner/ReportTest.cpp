// The page of a report in a browser: what stands there after its script has run.

#include "PlanText.h"
#include "Program.h"

#include <gtest/gtest.h>

#include <fstream>
#include <unistd.h>

using namespace plantext;

namespace {

/// Names that would end the data or become elements if they weren't escaped; a loop, a removal, a structure.
constexpr const char* kPlan = R"({"version": 1, "items": [
    {"id": "bad", "kind": "product", "name": "</script><img src=x onerror=\"document.title='broken'\">&amp;'\\"},
    {"id": "door", "kind": "assembly", "holds": ["bad", "f"], "name": "Door"}, {"id": "lonely", "kind": "item"},
    {"id": "f", "kind": "fastener", "type": "Rivet", "name": "Rivet <b>1</b>"}],
  "process": {"id": "line", "name": "Line </title><script>document.title='broken'</script>", "children": [
    {"id": "a", "name": "Load </svg>", "first_assigned": ["bad"]},
    {"id": "b", "items": ["f"], "outputs": ["door"]}]},
  "links": [["a", "b"]]})";

struct Case {
    const char* name;
    const char* hash; ///< behind the address of the page
    const char* part; ///< of what the browser shows; a ! in front says that it isn't there
};

bool hasBrowser() {
    return runShell("command -v chromium").status == 0;
}

/// What stands in the page of a plan when its script has run, and another one behind it. The data of the page are no
/// part of that.
std::string seenOf(const std::string& plan, const std::string& hash, const std::string& script = "") {
    const std::string file = makeFile("page", "") + ".html";
    const Outcome ran = run("report % -o " + file, plan);
    EXPECT_EQ(ran.status, 0) << ran.errors;
    std::ofstream(file, std::ios::app) << "<script>" << script << "</script>";
    const std::string profile = makeFile("profile", "") + ".d";
    const Outcome shown =
        runShell("timeout 60 chromium --headless --no-sandbox --disable-gpu --user-data-dir=" + profile +
                 " --virtual-time-budget=2000 --dump-dom 'file://" + file + hash + "'");
    ::unlink(file.c_str());
    runShell("rm -rf " + profile);
    EXPECT_NE(shown.output.find("<html"), std::string::npos) << shown.errors;
    return shown.output.substr(0, shown.output.find("<script id=\"data\""));
}

class Page : public testing::TestWithParam<Case> {};

TEST_P(Page, ShowsInABrowser) {
    if (!hasBrowser()) {
        GTEST_SKIP() << "chromium isn't installed";
    }
    const std::string seen = seenOf(kPlan, GetParam().hash);
    const bool isAbsent = GetParam().part[0] == '!';
    EXPECT_EQ(seen.find(GetParam().part + (isAbsent ? 1 : 0)) == std::string::npos, isAbsent) << seen;
}

const Case kCases[] = {
    {"TheTop", "",
     "<span class=\"name\">Door</span><span class=\"kind\">assembly</span><span class=\"id\">door</span>"},
    {"WhatIsBelowOnlyWhenItIsOpened", "", "!class=\"name\">&lt;/script&gt;"},
    {"TheSums", "", "<p id=\"sums\">"},
    {"WhatIsSearched", "#search=ONERROR", "1 of "},
    {"NamesAsText", "#search=onerror",
     "<span class=\"name\">&lt;/script&gt;&lt;img src=x onerror=\"document.title='broken'\"&gt;&amp;amp;'\\</span>"},
    {"NoNameAsScript", "", "<title>Line &lt;/title&gt;&lt;script&gt;document.title='broken'&lt;/script&gt;</title>"},
    {"NothingForNoMatch", "#search=nosuchthing", "0 of "},
    {"Kits", "", "<details><summary>"},
    {"Findings", "", "Items that nobody mentions (1)"},
    {"TheFlow", "", "Load &lt;/svg&gt;</text>"},
};
INSTANTIATE_TEST_SUITE_P(Report, Page, testing::ValuesIn(kCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST(Report, GoesToPaperWhole) {
    if (!hasBrowser()) {
        GTEST_SKIP() << "chromium isn't installed";
    }
    constexpr std::size_t kSteps = 700; // more than are made at once
    std::string items;
    std::string steps;
    std::string links;
    for (std::size_t i = 0; i < kSteps; ++i) {
        const std::string n = std::to_string(i);
        items += (i == 0 ? "" : ",") + ("{\"id\": \"p" + n) + "\", \"kind\": \"product\"}";
        steps += (i == 0 ? "" : ",") + ("{\"id\": \"s" + n) + "\", \"first_assigned\": [\"p" + n + "\"]}";
        links += i == 0 ? "" : (i == 1 ? "" : ",") + ("[\"s" + std::to_string(i - 1)) + "\", \"s" + n + "\"]";
    }
    const std::string plan = R"({"version": 1, "items": [)" + items + R"(], "process": {"id": "line", "children": [)" +
                             steps + "]}, \"links\": [" + links + "]}";
    const std::string seen = seenOf(plan, "", "dispatchEvent(new Event('beforeprint'))");
    const auto count = [&](const std::string& part) {
        std::size_t number = 0;
        for (std::size_t at = seen.find(part); at != std::string::npos; at = seen.find(part, at + 1)) {
            ++number;
        }
        return number;
    };
    EXPECT_EQ(count("class=\"row\""), kSteps);
    EXPECT_EQ(count("<summary>"), kSteps);
    EXPECT_EQ(count("Show more"), 0U);
}

TEST(Report, AsksForNothingFromOutside) {
    const Outcome ran = run("report %", kPlan);
    EXPECT_EQ(ran.status, 0);
    for (const char* word : {"<link", "@import", "url(", "src=\"", "fetch("}) {
        EXPECT_EQ(ran.output.find(word), std::string::npos) << word;
    }
}

} // namespace
