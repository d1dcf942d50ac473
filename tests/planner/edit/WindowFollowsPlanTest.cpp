// The window on a plan that is edited, as a person sees it.

#include "planner/edit/WindowDesk.h"
#include "support/TestModel.h"

#include "navigation/QORINavigateObject.h"
#include "notification/QORSPPActivityNotification.h"
#include "notification/QORSPPActivityNotificationDispatcher.h"
#include "visualization/QORVisManager.h"

#include <gtest/gtest.h>

#include <deque>

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

struct FollowCase {
    const char* name;
    void (*edit)(Session& s);
    const char* tree;
    const char* shown;
};

/// Edits on the shop, each on top of the one before.
const FollowCase kEdits[] = {
    {"as opened", [](Session&) {}, "Bom(hinge(pin) door)", "hinge door"},
    {"another item", [](Session& s) { s.editor().putItem(s.activity("two"), Relation::FirstAssigned, s.item("rack")); },
     "Bom(hinge(pin) rack door)", "hinge door rack"},
    {"undone", [](Session& s) { s.editor().undo(); }, "Bom(hinge(pin) door)", "hinge door"},
    {"redone", [](Session& s) { s.editor().redo(); }, "Bom(hinge(pin) rack door)", "hinge door rack"},
    {"renamed item", [](Session& s) { s.editor().rename(s.item("pin"), "Pin 1"); }, "Bom(hinge(Pin 1) rack door)",
     "hinge door rack"},
    {"renamed activity", [](Session& s) { s.editor().rename(s.activity("two"), "Second"); },
     "Bom(hinge(Pin 1) rack door)", "hinge door rack"},
    {"link removed", [](Session& s) { s.editor().removeLink(s.flow("one"), s.flow("two")); }, "Bom(hinge(Pin 1) rack)",
     "hinge rack"},
    {"link the other way", [](Session& s) { s.editor().addLink(s.flow("two"), s.flow("one")); },
     "Bom(door hinge(Pin 1) rack)", "hinge rack door"},
    {"removed in a later step",
     [](Session& s) { s.editor().putItem(s.activity("one"), Relation::Removed, s.item("rack")); },
     "Bom(door hinge(Pin 1))", "hinge door"},
    {"the last step less", [](Session& s) { s.editor().removeActivity(s.activity("end")); }, "Bom(door hinge(Pin 1))",
     "hinge door"},
    {"an item less", [](Session& s) { s.editor().removeItem(s.item("door")); }, "Bom(hinge(Pin 1))", "hinge"},
    {"a step less", [](Session& s) { s.editor().removeActivity(s.activity("two")); }, "Bom", ""},
    {"all undone",
     [](Session& s) {
         while (s.editor().undo()) {
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
        step.edit(desk);
        EXPECT_EQ(desk.bill(), step.tree) << step.name;
        EXPECT_EQ(tree.tree(), step.tree) << step.name;
        EXPECT_EQ(both.tree(), step.tree) << step.name;
        EXPECT_EQ(items.tree(), "") << step.name;
        EXPECT_EQ(items.shown(), step.shown) << step.name;
        EXPECT_EQ(both.shown(), step.shown) << step.name;
        EXPECT_EQ(tree.shown(), "no view in space") << step.name;
    }
}

TEST(WindowOnAPlan, EmptiesAndFillsAgain) {
    Desk desk(kShop);
    const Window window = desk.open(kBoth);
    for (int round = 0; round < 3; ++round) {
        desk.editor().group("clear", [&] {
            desk.editor().removeActivity(desk.activity("one"));
            desk.editor().removeActivity(desk.activity("two"));
        });
        EXPECT_EQ(window.tree(), "Bom");
        EXPECT_EQ(window.shown(), "");
        desk.editor().rename(desk.item("rack"), "R");
        EXPECT_EQ(window.shown(), "") << "nothing is left to take away";
        desk.editor().undo();
        desk.editor().undo();
        EXPECT_EQ(window.tree(), "Bom(hinge(pin) door)");
        EXPECT_EQ(window.shown(), "hinge door");
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
    QOREventSubscriber& publisher = *desk.plan().process()->GetEventPublisher();
    EXPECT_EQ(publisher.GetSubscriptionCount(), 101) << "and the test";
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
    EXPECT_EQ(publisher.GetSubscriptionCount(), 1);
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
        EXPECT_EQ(publisher.GetSubscriptionCount(), 4) << "two listeners, the session's and the other window";
        desk.editor().undo();
        EXPECT_EQ(other.tree(), "Bom(hinge(pin) door)");
    }
}

/// Closes a window when its tree is emptied, in the middle of its own rebuild.
class ClosingPeers : public QORNavigBoxToolkit {
public:
    ClosingPeers() { QORNavigBox::SetToolkit(this); }
    ~ClosingPeers() override { QORNavigBox::SetToolkit(nullptr); }

    std::function<void()> rootsChanged;

    std::unique_ptr<QORNavigBoxPeer> MakePeer(QORNavigBox&) override { return std::make_unique<Peer>(*this); }

private:
    class Peer : public QORNavigBoxPeer {
    public:
        explicit Peer(ClosingPeers& owner) : owner_(owner) {}
        void RootsChanged() override {
            if (owner_.rootsChanged) {
                owner_.rootsChanged();
            }
        }
        void ChildrenChanged(QORNavigInstance&) override {}
        void NodeChanged(QORNavigInstance&) override {}
        void SelectionChanged() override {}
        void SettingsChanged() override {}

    private:
        ClosingPeers& owner_;
    };
};

TEST(WindowOnAPlan, MayCloseInTheMiddleOfItsOwnRebuild) {
    ClosingPeers peers;
    Desk desk(kShop);
    Window window = desk.open(kBoth);
    peers.rootsChanged = [&] {
        peers.rootsChanged = nullptr;
        window.close();
    };
    desk.editor().removeActivity(desk.activity("one"));
    EXPECT_EQ(desk.plan().process()->GetEventPublisher()->GetSubscriptionCount(), 1) << "the session's";
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
    EXPECT_EQ(first.plan().process()->GetEventPublisher()->GetSubscriptionCount(), 1);
    EXPECT_EQ(second.plan().process()->GetEventPublisher()->GetSubscriptionCount(), 2);
    QORFrmEditor::SetCurrentEditor(nullptr);
    other.close();
    EXPECT_EQ(second.plan().process()->GetEventPublisher()->GetSubscriptionCount(), 1);
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

// What the callback looks at.

class Callback : public testing::Test {
protected:
    void call(QORNotification* notification) { window_->OnActivityCallback("", nullptr, notification, nullptr, 0); }
    void callKind(int kind) {
        const auto notification = QORVar<QORSPPActivityNotification>::Adopt(new QORSPPActivityNotification(kind));
        call(notification.Get());
    }
    /// Changes the plan without telling anybody: the rack comes into the first step.
    void changeQuietly() { desk_.activity("one").firstAssigned.add(&desk_.item("rack")); }

    Desk desk_{kShop};
    Window window_ = desk_.open(kBoth);
    const QORVar<QORNavigInstance> root_{window_.box().GetRoot(1)};
    bool isRebuilt() const { return window_.box().GetRoot(1) != root_.Get(); }
};

TEST_F(Callback, IgnoresWhatIsNoNotificationOfActivities) {
    changeQuietly();
    call(nullptr);
    const auto foreign = QORVar<QORNotification>::Adopt(new QORNotification());
    call(foreign.Get());
    EXPECT_FALSE(isRebuilt());
    EXPECT_EQ(window_.shown(), "hinge door");
}

TEST_F(Callback, RebuildsForSixKinds) {
    for (int kind = 0; kind <= 64; ++kind) {
        const QORVar<QORNavigInstance> before(window_.box().GetRoot(1));
        callKind(kind);
        const bool expected = kind == 3 || kind == 17 || kind == 18 || kind == 27 || kind == 29 || kind == 39;
        EXPECT_EQ(window_.box().GetRoot(1) != before.Get(), expected) << kind;
    }
}

TEST_F(Callback, ComparesObjectsForOtherKindsToo) {
    changeQuietly();
    window_->UpdateBom();
    EXPECT_EQ(window_.tree(), desk_.bill());
    EXPECT_EQ(window_.shown(), "hinge door") << "the tree alone is rebuilt";
    callKind(1);
    EXPECT_EQ(window_.shown(), "hinge door rack");
}

TEST_F(Callback, LeavesTheViewAloneWhenAsManyObjectsAreThere) {
    desk_.activity("one").firstAssigned.make()[0] = &desk_.item("rack");
    callKind(29);
    EXPECT_TRUE(isRebuilt());
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

TEST(WindowWithoutPlan, FindsNoRootInOtherDocuments) {
    Desk desk(kShop);
    const auto document = QORBaseUnknown_var::Adopt(new OtherDocument(desk.document()));
    QORFrmEditor none(nullptr);
    QORFrmEditor other(document.Get());
    for (QORFrmEditor* editor : {&none, &other}) {
        QORFrmEditor::SetCurrentEditor(editor);
        const Window window(editor, desk.plan().process(), kTree);
        EXPECT_EQ(desk.plan().process()->GetEventPublisher()->GetSubscriptionCount(), 1);
        QORISPPActivity* activity = nullptr;
        window->GetRootActivity(&activity);
        EXPECT_EQ(activity, nullptr);
    }
}

TEST(WindowWithoutPlan, FindsTheRootOfThePlanThatIsCurrent) {
    Desk desk(kShop);
    const Window window = desk.open(kTree);
    QORISPPActivity* activity = nullptr;
    window->GetRootActivity(&activity);
    const auto found = QORISPPActivity_var::Adopt(activity);
    EXPECT_EQ(found.Impl(), desk.plan().process());
}

TEST(WindowOnARaisingModel, PassesTheErrorOnAndIsRightTheNextTime) {
    Desk desk(kShop);
    testmodel::World world;
    testmodel::Thing& root = world.thing("root", testmodel::kStep);
    testmodel::Thing& step = world.thing("step", testmodel::kStep);
    testmodel::Thing& end = world.thing("end", testmodel::kStep);
    root.children = testmodel::Things{&step, &end};
    step.parent = end.parent = &root;
    testmodel::World::link(step, end);
    step.items[2] = testmodel::Things{&world.thing("P", testmodel::kItem)};
    const Window window(&desk.frmEditor(), &root, kTree);
    EXPECT_EQ(window.tree(), "Bom(P)");
    const int callsOfARebuild = world.calls.count;
    world.calls.raiseAt = callsOfARebuild + callsOfARebuild / 2;
    EXPECT_THROW(desk.editor().addActivity(desk.activity("line"), {"new"}), std::runtime_error);
    EXPECT_EQ(window.tree(), "") << "emptied before the rebuild";
    EXPECT_EQ(desk.editor().undoText(), "Add \"new\"");
    world.calls.raiseAt = 0;
    desk.editor().undo();
    EXPECT_EQ(window.tree(), "Bom(P)");
}

} // namespace
