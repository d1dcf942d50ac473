// Long sessions of random edits, undone and redone at random: after each the plan is a good file, its bills are those
// of the plan that the file gives, and undoing all of it leads back to the beginning.

#include "planner/edit/RandomEdits.h"
#include "planner/PlanText.h"
#include "support/BomText.h"

#include "VXMBomInfrastructure/process/VXMProcessBomGenerator.h"

#include <gtest/gtest.h>

#include <random>

using editing::kWorld;
using editing::Session;

namespace {

class RandomSession : public testing::TestWithParam<unsigned> {};

TEST_P(RandomSession, KeepsThePlanGood) {
    constexpr int kEdits = 250;
    Session session(kWorld);
    std::mt19937 random(GetParam());
    editing::RandomEdits edits(session, [&random](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    });
    const std::string first = session.text();
    VXMProcessBomGenerator rebuilt(QORBaseUnknown_var(session.plan().process()));
    for (int i = 0; i < kEdits; ++i) {
        edits.step();
        const std::string now = session.text();
        const auto reread = plantext::read(now);
        ASSERT_TRUE(reread) << "edit " << i << ", " << session.editor().undoText() << '\n' << now;
        ASSERT_EQ(plantext::written(*reread), now) << "edit " << i << ", " << session.editor().undoText();
        ASSERT_EQ(testmodel::bomText(rebuilt.GetBom(1)), editing::billUnder(*reread->process())) << now;
        ASSERT_EQ(editing::billsOf(session.plan()), editing::billsOf(*reread)) << now;
    }
    EXPECT_GT(edits.refused(), 0);
    EXPECT_LT(edits.refused(), kEdits * 3 / 4);
    while (session.editor().undo()) {
    }
    EXPECT_EQ(session.text(), first);
    while (session.editor().redo()) {
    }
    session.expectGoodFile();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSession, testing::Range(1U, 5U));

} // namespace
