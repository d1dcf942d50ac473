// What outlives undo and redo: identity, the state of saving, groups; long sessions.

#include "planner/edit/EditSession.h"

#include "QORPlatform/framework/QORModelIdentificator.h"

#include <gtest/gtest.h>

#include <stdexcept>

using editing::kWorld;
using editing::Session;
using planner::EditError;
using planner::Relation;

namespace {

int numberOf(QORBaseUnknown& object) {
    return QORModelIdentificator(&object).GetIntId();
}

TEST(Undo, BringsTheSameObjectsBackWhoeverHasTheirIdsMeanwhile) {
    Session s(kWorld);
    const std::string first = s.text();
    const QORISPPAbstractActivity_var held(&s.activity("press"));
    planner::Activity& press = s.activity("press");
    const int number = numberOf(press);
    s.editor().removeActivity(s.activity("join"));
    EXPECT_EQ(held->GetName().Compare("press"), 2) << "a handle stays good";
    EXPECT_FALSE(press.standsInPlan());
    s.editor().addItem({"press"});
    s.editor().undo();
    s.editor().undo();
    EXPECT_EQ(&s.activity("press"), &press);
    EXPECT_EQ(numberOf(press), number);
    EXPECT_EQ(press.parent(), &s.activity("join"));
    EXPECT_EQ(s.text(), first);
}

TEST(Undo, KeepsTheNumberOfWhatIsAddedAgain) {
    Session s(kWorld);
    const int number = numberOf(s.editor().addItem({"new"}));
    EXPECT_GT(number, numberOf(s.resource("table"))) << "behind all numbers of the file";
    EXPECT_LT(number, 1 << 30);
    s.editor().undo();
    EXPECT_EQ(s.plan().find("new"), nullptr);
    s.editor().redo();
    EXPECT_EQ(numberOf(s.item("new")), number);
    EXPECT_GT(numberOf(s.editor().addItem({"newer"})), number);
}

TEST(Undo, EndsWhatCanNeverComeAgain) {
    Session s(kWorld);
    QORVar<planner::ModelObject> held(&s.editor().addItem({"new"}));
    EXPECT_EQ(held->GetReferenceCount(), 2);
    s.editor().undo();
    EXPECT_EQ(held->GetReferenceCount(), 2) << "redo can bring it back";
    s.editor().rename(s.item("jig"), "J");
    EXPECT_EQ(held->GetReferenceCount(), 1);
    EXPECT_FALSE(s.editor().canRedo());
}

TEST(Undo, KnowsWhatWasSaved) {
    Session s(kWorld);
    const auto rename = [&](const char* name) {
        s.editor().rename(s.item("jig"), name);
    };
    rename("1");
    rename("2");
    s.editor().markSaved();
    EXPECT_FALSE(s.editor().isModified());
    s.editor().undo();
    EXPECT_TRUE(s.editor().isModified());
    s.editor().redo();
    EXPECT_FALSE(s.editor().isModified());
    s.editor().undo();
    rename("3");
    EXPECT_TRUE(s.editor().isModified());
    s.editor().undo();
    EXPECT_TRUE(s.editor().isModified()) << "what was saved can't be reached any more";
}

TEST(Undo, OfNothingDoesNothing) {
    Session s(kWorld);
    EXPECT_FALSE(s.editor().undo());
    EXPECT_FALSE(s.editor().redo());
    s.editor().group("nothing", [] {});
    s.editor().makeList(s.activity("join"), Relation::Removed);
    EXPECT_FALSE(s.editor().canUndo());
    s.editor().group("g", [&] {
        s.editor().rename(s.item("jig"), "J");
        EXPECT_FALSE(s.editor().undo()) << "inside a group";
    });
    EXPECT_EQ(s.listener().take(), "39");
}

TEST(Undo, TakesAGroupBackThatFails) {
    Session s(kWorld);
    const std::string first = s.text();
    const auto failing = [&] {
        s.editor().group("g", [&] {
            s.editor().removeItem(s.item("part"));
            s.editor().addActivity(s.activity("line"), {"new"});
            s.editor().addLink(s.flow("new"), s.flow("load"));
            throw std::runtime_error("halfway");
        });
    };
    EXPECT_THROW(failing(), std::runtime_error);
    EXPECT_EQ(s.text(), first);
    EXPECT_EQ(s.listener().take(), "");
    EXPECT_FALSE(s.editor().canUndo());
    s.editor().group("g", [&] {
        s.editor().rename(s.item("jig"), "J");
        EXPECT_THROW(s.editor().addItem({"jig"}), EditError) << "refused inside, and the group goes on";
    });
    EXPECT_EQ(s.editor().undoText(), "g");
}

TEST(Undo, TurnsADefaultRootIntoAProcessAndBack) {
    Session s(R"({"plan": "Empty", "version": 1, "items": [{"id": "process", "kind": "item"}]})");
    const std::string first = s.text();
    s.editor().addActivity(*s.plan().process(), {"process-2"});
    EXPECT_NE(s.text().find(R"("process": {"id": "process-3", "name": "Empty", "children": [)"), std::string::npos)
        << s.text();
    s.expectGoodFile();
    s.editor().undo();
    EXPECT_EQ(s.text(), first);
    s.editor().redo();
    EXPECT_EQ(s.activity("process-3").GetEventPublisher(), s.plan().process()->GetEventPublisher());
}

/// Many edits, each of which would be slow if it went through what is there. All lists are absent at first.
TEST(Undo, LastsALongSession) {
    constexpr std::size_t kEdits = 10000;
    Session s(R"({"version": 1, "process": {"id": "p"}})");
    const std::string first = s.text();
    planner::Activity& root = s.activity("p");
    s.editor().addResource(nullptr, {"r"});
    for (std::size_t i = 0; i < kEdits; ++i) {
        const std::string number = std::to_string(i);
        planner::Activity& step = s.editor().addActivity(root, {"a" + number});
        s.editor().addItem({"i" + number});
        s.editor().putItem(step, Relation::Items, s.item("i" + number));
        s.editor().addLink(i == 0 ? root : s.activity("a" + std::to_string(i - 1)), step);
    }
    s.expectGoodFile();
    const std::string full = s.text();
    for (std::size_t i = 0; i < kEdits; ++i) { // from the middle outwards, ends last
        const std::size_t at = i % 2 == 0 ? kEdits / 2 + i / 2 : kEdits / 2 - 1 - i / 2;
        s.editor().removeItem(s.item("i" + std::to_string(at)));
        s.editor().removeActivity(s.activity("a" + std::to_string(at)));
    }
    EXPECT_TRUE(s.plan().links().empty());
    EXPECT_TRUE(root.children.empty());
    for (std::size_t i = 0; i < 2 * kEdits; ++i) {
        s.editor().undo();
    }
    EXPECT_EQ(s.text(), full);
    while (s.editor().undo()) {
    }
    EXPECT_EQ(s.text(), first);
}

} // namespace
