// The window on a plan that is edited, as a person sees it.

#include "library/WindowDesk.h"
#include "planner/edit/RandomEdits.h"
#include "support/BomText.h"
#include "support/Drawing.h"
#include "support/RecordingToolkit.h"

#include "QORPlatform/navigation/QORINavigateObject.h"
#include "QORPlatform/notification/QORSPPActivityNotification.h"
#include "QORPlatform/visualization/QORVisManager.h"

#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <random>

using editing::Desk;
using editing::kShop;
using editing::Listener;
using editing::Session;
using editing::Window;
using planner::Relation;

namespace {

constexpr int kTree = 1;
constexpr int kItems = 2;
constexpr int kBoth = 3;

/// Who is subscribed to the changes of a plan; the session itself is one.
int subscribersOf(Desk& desk) {
    return desk.plan().process()->GetEventPublisher()->GetSubscriptionCount();
}

using E = planner::PlanEditor;
using S = Session;

struct FollowCase {
    const char* name;
    void (*edit)(E& e, S& s);
    const char* tree;
    const char* shown;
};

/// Edits on the shop, each on top of the one before.
const FollowCase kEdits[] = {
    {"as opened", [](E&, S&) {}, "Bom(hinge(pin) door)", "hinge door"},
    {"another item", [](E& e, S& s) { e.putItem(s.activity("two"), Relation::FirstAssigned, s.item("rack")); },
     "Bom(hinge(pin) rack door)", "hinge door rack"},
    {"undone", [](E& e, S&) { e.undo(); }, "Bom(hinge(pin) door)", "hinge door"},
    {"redone", [](E& e, S&) { e.redo(); }, "Bom(hinge(pin) rack door)", "hinge door rack"},
    {"renamed item", [](E& e, S& s) { e.rename(s.item("pin"), "P"); }, "Bom(hinge(P) rack door)", "hinge door rack"},
    {"renamed activity", [](E& e, S& s) { e.rename(s.activity("two"), "Second"); }, "Bom(hinge(P) rack door)",
     "hinge door rack"},
    {"link removed", [](E& e, S& s) { e.removeLink(s.flow("one"), s.flow("two")); }, "Bom(hinge(P) rack)",
     "hinge rack"},
    {"link the other way", [](E& e, S& s) { e.addLink(s.flow("two"), s.flow("one")); }, "Bom(door hinge(P) rack)",
     "hinge rack door"},
    {"removed in a later step", [](E& e, S& s) { e.putItem(s.activity("one"), Relation::Removed, s.item("rack")); },
     "Bom(door hinge(P))", "hinge door"},
    {"the last step less", [](E& e, S& s) { e.removeActivity(s.activity("end")); }, "Bom(door hinge(P))", "hinge door"},
    {"a shape less", [](E& e, S& s) { e.setShape(s.item("door"), std::nullopt); }, "Bom(door hinge(P))", "hinge door"},
    {"that item less", [](E& e, S& s) { e.removeItem(s.item("door")); }, "Bom(hinge(P))", "hinge"},
    {"a step less", [](E& e, S& s) { e.removeActivity(s.activity("two")); }, "Bom", ""},
    {"nothing to take away", [](E& e, S& s) { e.rename(s.item("rack"), "R"); }, "Bom", ""},
    {"all undone",
     [](E& e, S&) {
         while (e.undo()) {
         }
     },
     "Bom(hinge(pin) door)", "hinge door"},
};

TEST(WindowOnAPlan, FollowsEditsInEachMode) {
    Desk desk(kShop);
    const Window tree = desk.open(kTree);
    const Window items = desk.open(kItems);
    const Window both = desk.open(kBoth);
    for (const FollowCase& step : kEdits) {
        step.edit(desk.editor(), desk);
        EXPECT_EQ(desk.bill(), step.tree) << step.name;
        EXPECT_EQ(tree.tree(), step.tree) << step.name;
        EXPECT_EQ(both.tree(), step.tree) << step.name;
        EXPECT_EQ(items.tree(), "") << step.name;
        EXPECT_EQ(items.shown(), step.shown) << step.name;
        EXPECT_EQ(both.shown(), step.shown) << step.name;
        EXPECT_EQ(tree.shown(), "no view in space") << step.name;
    }
}

TEST(WindowOnAPlan, BeginsEmptyAndFills) {
    Desk desk(R"({"version": 1, "items": [{"id": "i", "kind": "item", "shape": {"sphere": [1]}}]})");
    const Window window = desk.open(kBoth);
    EXPECT_EQ(window.tree(), "Bom");
    EXPECT_EQ(QORVisManager::GetVisManager()->GetHSO(*window.viewer().GetMain3DViewpoint()), nullptr);
    planner::Activity& step = desk.editor().addActivity(*desk.plan().process(), {"step"});
    desk.editor().putItem(step, Relation::FirstAssigned, desk.item("i"));
    EXPECT_EQ(window.tree(), "Bom") << "a step without a link leads nowhere";
    desk.editor().addLink(step, desk.editor().addActivity(*desk.plan().process(), {"end"}));
    EXPECT_EQ(window.tree(), "Bom(i)");
    EXPECT_EQ(window.shown(), "i");
    EXPECT_EQ(QORVisManager::GetVisManager()->GetHSO(*window.viewer().GetMain3DViewpoint()), desk.frmEditor().GetHSO());
}

TEST(WindowOnAPlan, ShowsOneAsAHundred) {
    Desk desk(kShop);
    std::deque<Window> windows;
    for (int i = 0; i < 100; ++i) {
        windows.push_back(desk.open(1 + i % 3));
    }
    EXPECT_EQ(subscribersOf(desk), 101) << "and the session";
    desk.editor().removeActivity(desk.activity("one"));
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(windows[static_cast<std::size_t>(i)].tree(), i % 3 == 1 ? "" : "Bom(hinge(pin))");
        EXPECT_EQ(windows[static_cast<std::size_t>(i)].shown(), i % 3 == 0 ? "no view in space" : "hinge");
    }
    while (windows.size() > 1) { // from both ends
        windows.pop_back();
        windows.pop_front();
    }
    windows.clear();
    EXPECT_EQ(subscribersOf(desk), 1);
}

TEST(WindowOnAPlan, LeavesTreeObjectsOfEarlierBillsReadable) {
    Desk desk(kShop);
    const Window window = desk.open(kTree);
    window.tree();
    const QORVar<QORNavigInstance> root(window.box().GetRoot(1));
    const QORINavigateObject_var old(root->GetTreeObject());
    desk.editor().removeItem(desk.item("door"));
    EXPECT_EQ(window.tree(), "Bom(hinge(pin))");
    EXPECT_EQ(root->GetBox(), nullptr);
    const std::unique_ptr<QORListValQORBaseUnknown_var> children(old->GetChildren());
    ASSERT_EQ(children->Size(), 2);
    const std::unique_ptr<QORListValQORUnicodeString> label(
        QORINavigateObject_var((*children)[2])->GetIdentificators());
    EXPECT_EQ((*label)[1].Compare("door"), 2);
}

TEST(WindowOnAPlan, MayCloseInTheMiddleOfANotification) {
    for (const bool isToldFirst : {true, false}) {
        Desk desk(kShop);
        QOREventSubscriber& publisher = *desk.plan().process()->GetEventPublisher();
        auto before = QORVar<Listener>::Adopt(new Listener(publisher));
        Window window = desk.open(kBoth);
        auto after = QORVar<Listener>::Adopt(new Listener(publisher));
        const Window other = desk.open(kBoth);
        (isToldFirst ? before : after)->react = [&](int) {
            window.close();
        };
        desk.editor().removeActivity(desk.activity("one"));
        EXPECT_EQ(other.tree(), "Bom(hinge(pin))");
        EXPECT_EQ(subscribersOf(desk), 4) << "two listeners, the session's and the other window";
        desk.editor().undo();
        EXPECT_EQ(other.tree(), "Bom(hinge(pin) door)");
    }
}

TEST(WindowOnAPlan, MayCloseInTheMiddleOfItsOwnRebuild) {
    recording::Log log;
    const recording::Toolkit toolkit(log);
    Desk desk(kShop);
    Window window = desk.open(kBoth);
    bool closes = true;
    log.onLine([&] {
        if (std::exchange(closes, false)) { // the first line is that the tree is empty
            window.close();
        }
    });
    desk.editor().removeActivity(desk.activity("one"));
    EXPECT_EQ(subscribersOf(desk), 1);
    desk.editor().undo();
}

TEST(WindowOnAPlan, UnsubscribesWhereItSubscribed) {
    Desk first(kShop);
    Window window = first.open(kBoth);
    Desk second(kShop);
    Window other = second.open(kBoth);
    EXPECT_EQ(QORFrmEditor::GetCurrentEditor(), &second.frmEditor());
    first.editor().removeActivity(first.activity("one"));
    EXPECT_EQ(window.tree(), "Bom(hinge(pin))") << "follows its plan, whatever document is current";
    EXPECT_EQ(other.tree(), "Bom(hinge(pin) door)");
    window.close();
    EXPECT_EQ(subscribersOf(first), 1);
    EXPECT_EQ(subscribersOf(second), 2);
    QORFrmEditor::SetCurrentEditor(nullptr);
    other.close();
    EXPECT_EQ(subscribersOf(second), 1);
}

TEST(WindowOnAPlan, OutlivesDocumentAndEditor) {
    auto desk = std::make_unique<Desk>(kShop);
    Window window = desk->open(kBoth);
    desk.reset();
    EXPECT_EQ(QORFrmEditor::GetCurrentEditor(), nullptr);
    EXPECT_EQ(window.tree(), "Bom(hinge(pin) door)") << "the bill as it was last made";
    EXPECT_EQ(window->RemoveCallbacks(), 1);
    window.close();
}

TEST(WindowOnAPlan, OnAResourceFollowsTheMainProcess) {
    Desk desk(R"({"version": 1, "items": [{"id": "a", "kind": "product"}, {"id": "b", "kind": "product"}],
                  "resources": [{"id": "r", "behaviour": {"activities": [], "assigned": ["a"]}}]})");
    const Window window(&desk.frmEditor(), &desk.resource("r"), kTree);
    EXPECT_EQ(window.tree(), "Bom(a)");
    desk.editor().putItem(*desk.resource("r").behaviour(), Relation::Assigned, desk.item("b"));
    EXPECT_EQ(window.tree(), "Bom(a b)");
    desk.editor().removeResource(desk.resource("r"));
    desk.editor().undo();
    EXPECT_EQ(window.tree(), "Bom(a b)");
}

struct AsideCase {
    const char* name;
    void (*edit)(E& e, S& s);
    bool rebuilds;
};

const AsideCase kAside[] = {
    {"a list on no way to the end", [](E& e, S& s) { e.putItem(s.activity("aside"), Relation::Assigned, s.item("p")); },
     false},
    {"undone", [](E& e, S&) { e.undo(); }, false},
    {"a product that nobody takes", [](E& e, S& s) { e.putItem(s.item("q"), Relation::Children, s.item("r")); }, false},
    {"a list on the way", [](E& e, S& s) { e.putItem(s.activity("one"), Relation::FirstAssigned, s.item("q")); }, true},
    {"that product, now taken", [](E& e, S& s) { e.putItem(s.item("q"), Relation::Children, s.item("p")); }, true},
    {"what it is made of", [](E& e, S& s) { e.putItem(s.item("r"), Relation::Children, s.item("s")); }, true},
    {"one edit aside and one on the way",
     [](E& e, S& s) {
         e.group("both", [&] {
             e.putItem(s.activity("aside"), Relation::Assigned, s.item("p"));
             e.takeItem(s.activity("one"), Relation::FirstAssigned, 0);
         });
     },
     true},
    {"a link from aside", [](E& e, S& s) { e.addLink(s.flow("aside"), s.flow("two")); }, true},
    {"the list that was aside", [](E& e, S& s) { e.takeItem(s.activity("aside"), Relation::Assigned, 0); }, true},
};

TEST(WindowOnAPlan, RebuildsForNoListOffTheWayToTheEnd) {
    Desk desk(R"({"version": 1, "items": [{"id": "p", "kind": "product"}, {"id": "q", "kind": "product"},
                   {"id": "r", "kind": "product"}, {"id": "s", "kind": "product"}],
                  "process": {"id": "line", "children": [
                    {"id": "one", "first_assigned": ["p"]}, {"id": "two"}, {"id": "aside"}]},
                  "links": [["one", "aside"], ["one", "two"]]})");
    const Window window = desk.open(kTree);
    for (const AsideCase& step : kAside) {
        const QORVar<QORNavigInstance> before(window.box().GetRoot(1));
        step.edit(desk.editor(), desk);
        EXPECT_EQ(window.box().GetRoot(1) != before.Get(), step.rebuilds) << step.name;
        EXPECT_EQ(window.tree(), desk.bill()) << step.name;
    }
}

TEST(WindowOnAPlan, ShowsTheBillAfterAnyEdit) {
    constexpr int kSteps = 400;
    for (unsigned seed = 1; seed <= 6; ++seed) {
        Desk desk(editing::kWorld);
        std::mt19937 random(seed);
        editing::RandomEdits edits(desk, [&random](std::size_t limit) { return random() % limit; });
        const Window process = desk.open(kTree);
        const Window resource(&desk.frmEditor(), &desk.resource("robot"), kTree);
        const auto shown = [](const Window& window) {
            return testmodel::bomText(window->GetGenerator()->GetBom(0));
        };
        planner::Resource& robot = desk.resource("robot");
        for (int i = 0; i < kSteps; ++i) {
            edits.step();
            ASSERT_EQ(shown(process), editing::billUnder(*desk.plan().process())) << seed << ", edit " << i << '\n'
                                                                                  << desk.text();
            ASSERT_EQ(shown(resource), editing::billUnder(robot)) << seed << ", edit " << i << '\n' << desk.text();
        }
    }
}

// What the callback looks at.

class Callback : public testing::Test {
protected:
    /// Calls back with a notification, and tells whether the tree was rebuilt.
    bool rebuildsFor(QORNotification* notification) {
        const QORVar<QORNavigInstance> before(window_.box().GetRoot(1));
        window_->OnActivityCallback("", nullptr, notification, nullptr, 0);
        return window_.box().GetRoot(1) != before.Get();
    }
    bool rebuildsForKind(int kind) {
        return rebuildsFor(QORVar<QORSPPActivityNotification>::Adopt(new QORSPPActivityNotification(kind)).Get());
    }
    /// Changes the plan without telling anybody: the rack comes into the first step.
    void changeQuietly() { desk_.activity("one").firstAssigned.add(&desk_.item("rack")); }

    Desk desk_{kShop};
    Window window_ = desk_.open(kBoth);
};

TEST_F(Callback, IgnoresWhatIsNoNotificationOfActivities) {
    changeQuietly();
    EXPECT_FALSE(rebuildsFor(nullptr));
    EXPECT_FALSE(rebuildsFor(QORVar<QORNotification>::Adopt(new QORNotification()).Get()));
    EXPECT_EQ(window_.shown(), "hinge door");
}

TEST_F(Callback, RebuildsForSixKinds) {
    for (int kind = 0; kind <= 64; ++kind) {
        const bool expected = kind == 3 || kind == 17 || kind == 18 || kind == 27 || kind == 29 || kind == 39;
        EXPECT_EQ(rebuildsForKind(kind), expected) << kind;
    }
}

TEST_F(Callback, ComparesObjectsForOtherKindsToo) {
    changeQuietly();
    window_->UpdateBom();
    EXPECT_EQ(window_.tree(), desk_.bill());
    EXPECT_EQ(window_.shown(), "hinge door") << "the tree alone is rebuilt";
    EXPECT_FALSE(rebuildsForKind(1));
    EXPECT_EQ(window_.shown(), "hinge door rack");
}

TEST_F(Callback, LeavesTheViewAloneWhenAsManyObjectsAreThere) {
    desk_.activity("one").firstAssigned.make()[0] = &desk_.item("rack");
    EXPECT_TRUE(rebuildsForKind(29));
    EXPECT_EQ(window_.tree(), "Bom(hinge(pin) rack)");
    EXPECT_EQ(window_.shown(), "hinge door") << "counts alone decide";
}

// Windows that can't follow.

TEST(WindowWithoutPlan, StandsAsBuilt) {
    Desk desk(kShop);
    QORFrmEditor::SetCurrentEditor(nullptr);
    Window window(nullptr, desk.plan().process(), kBoth);
    desk.editor().removeActivity(desk.activity("one"));
    EXPECT_EQ(window.tree(), "Bom(hinge(pin) door)");
    EXPECT_EQ(window.shown(), "hinge door") << "shown without an editor";
    EXPECT_EQ(QORVisManager::GetVisManager()->GetPSO(*window.viewer().GetMain3DViewpoint()), nullptr);
    EXPECT_EQ(window.box().GetController(), nullptr);
    EXPECT_EQ(window->RemoveCallbacks(), 1);
}

/// A document of another class, though it leads to the same processes.
class OtherDocument : public QORBaseUnknown {
public:
    explicit OtherDocument(planner::PlanDocument& plan) : plan_(&plan) {}
    QORStatus QueryInterface(const QORInterfaceID& interface, void** found) override {
        return plan_->QueryInterface(interface, found);
    }

private:
    QORVar<planner::PlanDocument> plan_;
};

TEST(WindowWithoutPlan, FindsTheRootInADocumentOfPlansOnly) {
    Desk desk(kShop);
    const auto document = QORBaseUnknown_var::Adopt(new OtherDocument(desk.document()));
    QORFrmEditor none(nullptr);
    QORFrmEditor other(document.Get());
    for (QORFrmEditor* editor : {&none, &other, &desk.frmEditor()}) {
        const bool leads = editor == &desk.frmEditor();
        QORFrmEditor::SetCurrentEditor(editor);
        const Window window(editor, desk.plan().process(), kTree);
        EXPECT_EQ(subscribersOf(desk), leads ? 2 : 1);
        QORISPPActivity* activity = nullptr;
        window->GetRootActivity(&activity);
        EXPECT_EQ(QORISPPActivity_var::Adopt(activity).Impl(), leads ? desk.plan().process() : nullptr);
    }
}

TEST(WindowOnARaisingModel, PassesTheErrorOnAndIsRightTheNextTime) {
    Desk desk(kShop);
    testmodel::World world;
    testmodel::Thing& root = testmodel::drawPlan(world, "S1: +P | S2");
    const Window window(&desk.frmEditor(), &root, kTree);
    EXPECT_EQ(window.tree(), "Bom(P)");
    const int callsOfARebuild = world.calls.count;
    world.calls.raiseAt = callsOfARebuild + callsOfARebuild / 2;
    EXPECT_THROW(desk.editor().addActivity(desk.activity("line"), {"new"}), std::runtime_error);
    EXPECT_EQ(window.tree(), "Bom(P)") << "the last bill";
    EXPECT_TRUE(window->IsOutOfDate());
    EXPECT_EQ(desk.editor().undoText(), "Add \"new\"");
    world.calls.raiseAt = 0;
    desk.editor().undo();
    EXPECT_EQ(window.tree(), "Bom(P)");
    EXPECT_FALSE(window->IsOutOfDate());
}

} // namespace
