// A planner's questions, asked in the window: the answers are in the words of the command line.

#include "desktop/Desk.h"

#include "planner/desktop/flow/FlowView.h"
#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/questions/AnswerPane.h"
#include "planner/desktop/questions/Findings.h"

#include <QAction>
#include <QListView>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using desk::Desk;
using testing::HasSubstr;
using testing::Not;

class QuestionsTest : public testing::Test {
protected:
    /// Chooses an object, asks with a key, and gives the answer.
    std::string ask(const char* id, Qt::Key key) {
        desk_.window().choice().choose(&desk_.object(id));
        QTest::keyClick(&desk_.window(), key);
        Desk::settle();
        EXPECT_TRUE(answers().isVisible());
        return answers().toPlainText().toStdString();
    }
    QTextBrowser& answers() { return desk_.find<QTextBrowser>("answers"); }

    Desk desk_;
};

TEST_F(QuestionsTest, WhyAnItemIsInTheBillOrNot) {
    EXPECT_THAT(ask("door", Qt::Key_F1), AllOf(HasSubstr("in the bill"), HasSubstr("one")));
    EXPECT_THAT(ask("rack", Qt::Key_F1), AllOf(HasSubstr("not in the bill"), HasSubstr("no step lists it")));
    EXPECT_FALSE(desk_.action("Bill at This Step").isEnabled());
    desk_.window().choice().choose(&desk_.object("one"));
    EXPECT_FALSE(desk_.action("Why").isEnabled());
}

TEST_F(QuestionsTest, AnObjectInAnAnswerIsALinkToIt) {
    ask("door", Qt::Key_F1);
    Q_EMIT answers().anchorClicked(QUrl("#two"));
    EXPECT_EQ(Desk::selected(desk_.plan()), "two");
    EXPECT_THAT(answers().toHtml().toStdString(), HasSubstr("href=\"#one\""));
}

TEST_F(QuestionsTest, TheBillAtAStepHoldsWhatHasComeByThen) {
    EXPECT_THAT(ask("one", Qt::Key_F6), AllOf(HasSubstr("door"), Not(HasSubstr("hinge"))));
    EXPECT_THAT(ask("two", Qt::Key_F6), AllOf(HasSubstr("door"), HasSubstr("hinge"), HasSubstr("pin")));
}

TEST_F(QuestionsTest, ThePlanIsComparedWithItsFile) {
    desk_.session().perform([&](planner::PlanEditor& editor) {
        editor.putItem(desk_.object("end"), planner::Relation::FirstAssigned, desk_.object("rack"));
        editor.takeItem(desk_.object("one"), planner::Relation::FirstAssigned, 0);
    });
    EXPECT_THAT(ask("one", Qt::Key_F8), AllOf(HasSubstr("rack"), HasSubstr("door"), Not(HasSubstr("hinge"))));
    EXPECT_EQ(Desk::text(desk_.bill()), "Bom(rack hinge rivet)") << "the window's own bill stays";
}

TEST_F(QuestionsTest, FindingsMarkWhatTheyAreAboutAndGoWhenItIsMended) {
    const auto& findings = desk_.window().findings();
    const auto isMarked = [&](const char* id) {
        return findings.marks(desk_.object(id));
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return isMarked("rack"); }, 3000)) << "nobody mentions it";
    EXPECT_THAT(ask("one", Qt::Key_F7), HasSubstr(findings.all().front().message));
    QAbstractItemView& items = desk_.find<QListView>("item-list");
    const QModelIndex row = Desk::row(items, "rack");
    EXPECT_TRUE(row.data(Qt::ToolTipRole).toString().contains(QString::fromStdString(findings.all().front().advice)));
    const auto picture = [](const QIcon& icon) {
        return icon.pixmap(16, 16).toImage();
    };
    EXPECT_NE(picture(row.data(Qt::DecorationRole).value<QIcon>()),
              picture(planner::desktop::iconOf(desk_.object("rack"))));

    desk_.session().perform([&](planner::PlanEditor& editor) {
        editor.removeLink(static_cast<planner::FlowObject&>(desk_.object("one")),
                          static_cast<planner::FlowObject&>(desk_.object("two")));
        editor.putItem(desk_.object("two"), planner::Relation::FirstAssigned, desk_.object("rack"));
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isMarked("one") && !isMarked("rack"); }, 3000));
    Desk::settle();
    const auto& flow = desk_.find<planner::desktop::FlowView>("flow-view");
    EXPECT_TRUE(flow.boxOf(desk_.object("one"))->toolTip().contains("→"));
    EXPECT_FALSE(flow.boxOf(desk_.object("two"))->toolTip().contains("→"));
}

} // namespace
