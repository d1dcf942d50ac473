// What is made from the table of commands besides the command line: what shells offer, and the manual.

#include "PlanText.h"
#include "Program.h"

#include "planner/cli/Arguments.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>

using namespace plantext;

namespace {

bool isThere(const std::string& program) {
    return runShell("command -v " + program).status == 0;
}

/// What a shell offers for the last word of a line.
struct Typed {
    std::string line;
    std::set<std::string> offered; ///< at least these
    std::string missing = "-";     ///< and not this one
};

const Typed kTyped[] = {
    {"planner ", {"bom", "fmt", "completion"}, "tree"},
    {"planner co", {"completion"}, "bom"},
    {"planner bom --fo", {"--format"}, "--root"},
    {"planner bom --format ", {"tree", "xml", "json", "csv"}, "fmt"},
    {"planner bom --format x", {"xml"}, "csv"},
    {"planner bom a.plan.json --fasteners Rivet,Sp", {"Spot-Weld"}, "Screw"},
    {"planner bom e", {"eins.plan.json"}, "other.txt"},
    {"planner bom --trace o", {"other.txt"}},
    {"planner fmt --", {"--output"}, "--format"},
    {"planner completion ", {"bash", "zsh", "fish"}, "bom"},
};

/// Words of what a shell has said, explanations behind tabs left out; of a list with commas those between them.
std::set<std::string> wordsOf(const std::string& text) {
    std::set<std::string> words;
    std::istringstream said(text);
    for (std::string line; std::getline(said, line);) {
        line.erase(std::min(line.find('\t'), line.size()));
        std::replace(line.begin(), line.end(), ',', ' ');
        std::istringstream stream(line);
        words.insert(std::istream_iterator<std::string>(stream), {});
    }
    return words;
}

/// Runs a shell on the program's own script, in a folder with two files. In the command, @ stands for what is typed.
void expectOffers(const std::string& shell, const std::string& command) {
    if (!isThere(shell)) {
        GTEST_SKIP() << shell << " isn't installed";
    }
    const std::string folder = makeFile("folder", "") + ".d";
    ASSERT_EQ(runShell("rm -rf " + folder + " && mkdir " + folder + " && cd " + folder +
                       " && touch eins.plan.json other.txt && " PLANNER_PROGRAM " completion " + shell + " > script")
                  .status,
              0);
    for (const Typed& typed : kTyped) {
        std::string filled = command;
        filled.replace(filled.find('@'), 1, typed.line);
        const std::string script = makeFile("ask", filled);
        const Outcome asked = runShell("cd " + folder + " && " + shell + ' ' + script);
        EXPECT_EQ(asked.errors, "") << typed.line;
        const std::set<std::string> offered = wordsOf(asked.output);
        for (const std::string& word : typed.offered) {
            EXPECT_TRUE(offered.contains(word)) << typed.line << " misses " << word << " in\n" << asked.output;
        }
        EXPECT_FALSE(offered.contains(typed.missing)) << typed.line << " gives\n" << asked.output;
    }
}

TEST(Completion, OffersInBash) {
    expectOffers("bash", R"(source ./script
line='@'
read -ra COMP_WORDS <<<"$line"
[[ $line == *' ' ]] && COMP_WORDS+=('')
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_planner
printf '%s\n' "${COMPREPLY[@]}"
)");
}

TEST(Completion, OffersInFish) {
    expectOffers("fish", "source ./script\ncomplete -C '@'\n");
}

/// The shell in a terminal of its own, which lists what it would complete.
TEST(Completion, OffersInZsh) {
    expectOffers("zsh", R"(zmodload zsh/zpty
TERM=dumb zpty inner zsh -f -i
zpty -w inner 'PS1= ; autoload -U compinit; compinit -u -D; source ./script; bindkey "^I" list-choices; print RE""ADY'
zpty -r inner text '*READY*2004h*'
zpty -w -n inner $'@\t\x15print DO""NE\n'
zpty -r inner text '*DONE*'
print -r -- ${text#*$'\n'}
)");
}

TEST(Manual, TellsEveryOptionAndIsGoodRoff) {
    const Outcome manual = run("man");
    EXPECT_EQ(manual.status, 0);
    for (const planner::Command& command : planner::commands()) {
        const std::size_t section = manual.output.find("\n.SS " + command.name);
        ASSERT_NE(section, std::string::npos) << command.name;
        for (const planner::Parameter& option : command.options) {
            const std::string bold = "\\fB\\-\\-" + option.name.substr(2, option.name.find('-', 2) - 2);
            EXPECT_NE(manual.output.find(bold, section), std::string::npos) << option.name;
        }
    }
    EXPECT_NE(manual.output.find("\\fBStud\\fR.\nBy default \\fBall"), std::string::npos);
    if (isThere("groff")) {
        const Outcome set = runShell(PLANNER_PROGRAM " man | groff -man -ww -Tutf8 -z");
        EXPECT_EQ(set.errors, "");
    }
}

TEST(Arguments, AreThoseOfTheTable) {
    planner::Arguments arguments(planner::commands().front());
    EXPECT_EQ(arguments.value("--root"), std::nullopt);
    EXPECT_EQ(arguments.text("--format"), "tree");
    EXPECT_THROW(arguments.has("--none"), std::logic_error);
}

} // namespace
