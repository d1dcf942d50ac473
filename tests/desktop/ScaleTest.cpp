// A plan of 50,000 steps: what opening it, an edit, and looking around cost, as ratios of processor time, which other
// work on the machine doesn't change much.

#include "desktop/Desk.h"

#include "planner/desktop/app/FileCommands.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/Recovery.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <limits>

#include <sys/resource.h>

namespace {

using desk::Desk;

constexpr int kSteps = 50000;

/// So many steps in a row, each of which brings a part.
std::string chain(int count) {
    std::string items;
    std::string steps;
    std::string links;
    for (int i = 0; i < count; ++i) {
        const std::string n = std::to_string(i);
        const char* const comma = i == 0 ? "" : ",\n";
        items += comma + (R"({"id":"p)" + n + R"(","kind":"product"})");
        steps += comma + (R"({"id":"s)" + n + R"(","first_assigned":["p)" + n + R"("]})");
        links += i == 0 ? "" : (i == 1 ? "" : ",") + (R"(["s)" + std::to_string(i - 1) + R"(","s)" + n + R"("])");
    }
    return R"({"version":1,"items":[)" + items + R"(],"process":{"id":"line","children":[)" + steps +
           R"(]},"links":[)" + links + "]}";
}

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

double spent(int who) {
    rusage usage{};
    ::getrusage(who, &usage);
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

template <class Work>
double costOf(const Work& work, int who = RUSAGE_SELF) {
    const double before = spent(who);
    work();
    return spent(who) - before;
}

/// The least of some turns, which are told their number.
template <class Work>
double leastCostOf(const Work& work) {
    double least = std::numeric_limits<double>::max();
    for (int turn = 0; turn < 3; ++turn) {
        least = std::min(least, costOf([&] { work(turn); }));
    }
    return least;
}

/// What a run of a program costs; it must end well.
double costOfRun(const char* program, const QStringList& arguments) {
    constexpr int kLong = 300000;
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    return costOf(
        [&] {
            process.start(program, arguments);
            EXPECT_TRUE(process.waitForFinished(kLong) && process.exitCode() == 0) << program;
        },
        RUSAGE_CHILDREN);
}

TEST(ScaleTest, ALargePlanOpensFastAndEditsAndScrollingDoNotWait) {
    Desk desk(chain(kSteps));
    const QString picture = desk.file() + ".png";
    const double command = costOfRun(PLANNER_PROGRAM, {"bom", desk.file()});
    EXPECT_LT(costOfRun(DESKTOP_PROGRAM, {desk.file(), "--mode", "1", "--screenshot", picture}), 3 * command);

    const double bill = leastCostOf([&](int) {
        const auto generator = VXMMakeBomGenerator(QORBaseUnknown_var(desk.session().plan().process()));
        generator->GetBom(0);
    });
    const auto edit = [&](int turn) {
        desk.session().perform([&](planner::PlanEditor& editor) {
            editor.takeItem(desk.object(("s10" + std::to_string(turn)).c_str()), planner::Relation::FirstAssigned, 0);
        });
        Desk::settle();
    };
    EXPECT_LT(leastCostOf(edit), 2 * bill); // the window's own bill is one of the two
    const auto choose = [&](int turn) {
        desk.window().choice().choose(&desk.object(("s4000" + std::to_string(turn)).c_str()));
        Desk::settle();
    };
    EXPECT_LT(leastCostOf(choose), bill);

    for (QTreeView* const tree : {&desk.bill(), &desk.plan()}) {
        const QModelIndex root = tree->model()->index(0, 0);
        const int first = tree->model()->rowCount(root);
        const auto scroll = [&](int) {
            for (int page = 0; page < 3; ++page) {
                QTest::keyClick(tree, Qt::Key_PageDown);
                Desk::settle();
            }
        };
        EXPECT_LT(leastCostOf(scroll), bill);
        EXPECT_GT(tree->model()->rowCount(root), first);
        EXPECT_LT(tree->model()->rowCount(root), kSteps / 20); // the others are made when they come near
    }
    EXPECT_LT(leastCostOf([&](int) { desk.window().files().recovery().writeNow(); }), bill);
}

TEST(ScaleTest, RowsThatWereNotMadeYetAreReachedRemovedBroughtBackAndSelected) {
    constexpr int kMany = 1000;
    Desk desk(chain(kMany));
    QTreeView& tree = desk.plan();
    const auto rows = [&] {
        return tree.model()->rowCount(tree.model()->index(0, 0));
    };
    EXPECT_LT(rows(), kMany / 2);
    desk.window().choice().choose(&desk.object("s700"));
    desk.action("Show in Plan").trigger();
    EXPECT_EQ(Desk::selected(tree), "s700");
    EXPECT_FALSE(tree.visualRect(tree.currentIndex()).isEmpty());
    const int reached = rows();
    EXPECT_LT(reached, kMany);
    QTest::keyClick(&tree, Qt::Key_Delete);
    EXPECT_FALSE(Desk::row(tree, "s700").isValid());
    desk.session().undo();
    EXPECT_EQ(Desk::row(tree, "s700").row(), 700);
    QTest::keyClick(&tree, Qt::Key_End);
    EXPECT_EQ(Desk::selected(tree), "s999");
    Desk::click(desk.bill(), "Bom");
    QTest::keyClick(&desk.bill(), Qt::Key_End);
    EXPECT_EQ(Desk::selected(desk.bill()), "p0");
    tree.selectAll();
    EXPECT_EQ(desk.window().choice().objects().size(), static_cast<std::size_t>(kMany) + 1); // the process, too
}

} // namespace
