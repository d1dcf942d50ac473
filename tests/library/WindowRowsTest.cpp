// What a rebuild leaves as it was: the rows that a person has opened and chosen, and the last bill where it fails. How
// often one comes, and how rows lead to the objects behind them and back.

#include "library/WindowDesk.h"
#include "support/Drawing.h"
#include "support/RecordingToolkit.h"

#include "QORPlatform/notification/QORSPPActivityNotification.h"
#include "QORPlatform/toolkit/QORProgress.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

using editing::Desk;
using editing::kShop;
using editing::kWorld;
using editing::Session;
using editing::Window;
using planner::Relation;

namespace {

constexpr int kTree = 1;
using E = planner::PlanEditor;
using Row = QORNavigRows::Row;

std::string labelOf(const QORNavigInstance& row) {
    return std::string(row.GetNode()->GetLabel());
}

/// The rows as a person sees them, selected (*) or marked (!) ones with a sign: "Bom(hinge(pin*) door!)".
std::string seen(const QORNavigInstance& row) {
    std::string text = labelOf(row) + (row.IsSelected() ? "*" : "") + (row.IsMarked() ? "!" : "");
    if (!row.IsExpanded()) {
        return text + (row.MayExpand() ? "+" : "");
    }
    for (int position = 1; position <= row.GetChildCount(); ++position) {
        text += (position == 1 ? "(" : " ") + seen(*row.GetChild(position));
    }
    return text + (row.GetChildCount() > 0 ? ")" : "");
}

/// The first row with that label, a person having opened all above it.
QORNavigInstance& rowOf(const Window& window, Session& session, const char* item, std::size_t which = 0) {
    QORNavigBox& box = window.box();
    return *box.Reveal(box.GetRows()->FindRows(&session.object(item)).at(which));
}

struct Refill {
    const char* name;
    void (*edit)(E& e, Session& s);
    const char* seen;
};

/// Each on top of the one before, in a tree whose pin is selected and whose door is marked.
const Refill kRefills[] = {
    {"opened", [](E&, Session&) {}, "Bom(hinge(pin*+) door!+)"},
    {"one more", [](E& e, Session& s) { e.putItem(s.activity("two"), Relation::FirstAssigned, s.item("rack")); },
     "Bom(hinge(pin*+) rack+ door!+)"},
    {"another name", [](E& e, Session& s) { e.rename(s.item("pin"), "P"); }, "Bom(hinge(P*+) rack+ door!+)"},
    {"one that is equal", [](E& e, Session& s) { e.putItem(s.item("hinge"), Relation::Children, s.item("pin"), 0); },
     "Bom(hinge(P*+ P+) rack+ door!+)"},
    {"the marked one less", [](E& e, Session& s) { e.removeItem(s.item("door")); }, "Bom(hinge(P*+ P+) rack+)"},
    {"the opened one less", [](E& e, Session& s) { e.removeItem(s.item("hinge")); }, "Bom(rack+)"},
    {"it comes back", [](E& e, Session&) { e.undo(); }, "Bom(hinge+ rack+)"},
};

TEST(WindowRows, StayOpenedChosenAndInViewWhereTheElementIsStillThere) {
    Desk desk(kShop);
    recording::Log log;
    const recording::Toolkit toolkit(log);
    const Window window = desk.open(kTree);
    QORNavigInstance& pin = rowOf(window, desk, "pin");
    window.box().SetSelection({&pin});
    rowOf(window, desk, "door").SetMarked(true);
    auto& peer = dynamic_cast<recording::BoxPeer&>(*window.box().GetPeer());
    peer.topRow = &pin;
    for (const Refill& step : kRefills) {
        log.take();
        step.edit(desk.editor(), desk);
        EXPECT_EQ(seen(*window.box().GetRoot(1)), step.seen) << step.name;
        if (step.name == std::string("one more")) {
            EXPECT_THAT(log.take(), testing::HasSubstr("refilled | scrolled up to pin | selected 1 |"));
            peer.topRow = nullptr;
        }
    }
}

/// All rows below one, top down.
void collect(QORNavigRows& rows, Row row, std::vector<Row>& found) {
    found.push_back(row);
    for (int position = 1; rows.GetChild(row, position) != QORNavigRows::kNone; ++position) {
        collect(rows, rows.GetChild(row, position), found);
    }
}

TEST(WindowRows, LeadToTheirObjectsAndBackWithoutBeingOpened) {
    Desk desk(kWorld);
    for (const char* root : {"line", "robot"}) {
        const Window window(&desk.frmEditor(), &desk.object(root), kTree);
        QORNavigBox& box = window.box();
        box.SetPortion(1);
        QORNavigRows& rows = *box.GetRows();
        std::vector<Row> all;
        collect(rows, rows.GetRoot(1), all);
        ASSERT_GT(all.size(), 1U);
        EXPECT_FALSE(rows.GetObject(all[0])) << "the top of the bill is no object";
        for (std::size_t i = 1; i < all.size(); ++i) {
            const QORBaseUnknown_var object = rows.GetObject(all[i]);
            const std::vector<Row> same = rows.FindRows(object.Get());
            EXPECT_EQ(std::count(same.begin(), same.end(), all[i]), 1);
            EXPECT_EQ(rows.FindChild(rows.GetParent(all[i]), object.Get(), rows.GetPlace(all[i])), all[i]);
        }
        EXPECT_EQ(box.GetInstance(all.back()), nullptr) << "not made yet";
        for (const Row row : all) {
            QORNavigInstance* const instance = box.Reveal(row);
            ASSERT_NE(instance, nullptr);
            EXPECT_EQ(box.GetRow(*instance), row);
            EXPECT_EQ(box.GetInstance(row), instance);
            const QORBaseUnknown_var object = box.GetObject(*instance);
            EXPECT_EQ(labelOf(*instance), object ? planner::ModelObject::behind(object)->name() : "Bom");
        }
        EXPECT_TRUE(rows.FindRows(&desk.document()).empty());
        EXPECT_EQ(box.Reveal(static_cast<Row>(all.size())), nullptr);
    }
}

// How often a window rebuilds, and what it shows when it can't.

/// A window on a drawn model, beside a plan whose changes it follows.
class Rebuild : public testing::Test {
protected:
    void change(int kind = 29) {
        QORSPPActivityNotificationDispatcher::Dispatch(*desk_.plan().process()->GetEventPublisher(), kind);
    }
    /// Number of rebuilds since the last call.
    int count() {
        const std::string text = log_.take();
        int found = 0;
        for (std::size_t at = text.find("refilled"); at != std::string::npos; at = text.find("refilled", at + 1)) {
            ++found;
        }
        return found;
    }

    recording::Log log_;
    recording::Toolkit toolkit_{log_};
    Desk desk_{kShop};
    testmodel::World world_;
    testmodel::Thing& root_ = testmodel::drawPlan(world_, "S1: +P | S2");
    Window window_{&desk_.frmEditor(), &root_, kTree};
};

TEST_F(Rebuild, ComesOnceForAnEditAndForAGroup) {
    desk_.editor().removeActivity(desk_.activity("one"));
    EXPECT_EQ(count(), 1) << "told as two kinds";
    QOREventSubscriber& publisher = *desk_.plan().process()->GetEventPublisher();
    publisher.InGroup([&] {
        desk_.editor().undo();
        publisher.InGroup([&] { change(1); });
        desk_.editor().redo();
        EXPECT_EQ(count(), 0);
    });
    EXPECT_EQ(count(), 1);
    EXPECT_THROW(publisher.InGroup([&] {
        change();
        throw std::runtime_error("edit");
    }),
                 std::runtime_error);
    EXPECT_EQ(count(), 1) << "what was told holds";
    publisher.InGroup([&] { change(1); });
    EXPECT_EQ(count(), 0);
    change();
    change();
    EXPECT_EQ(count(), 2) << "outside a group at once";
    publisher.InGroup([&] {
        change();
        window_.close();
    });
}

TEST_F(Rebuild, FollowsOnceAfterOneInsideWhichTheModelPublishes) {
    world_.calls.during = [&] {
        change();
    };
    change();
    EXPECT_EQ(count(), 2);
    bool asked = false;
    world_.calls.during = [&] {
        if (!std::exchange(asked, true)) {
            window_->UpdateBom();
        }
    };
    window_->UpdateBom();
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(window_.tree(), "Bom(P)");
}

TEST_F(Rebuild, LeavesTheLastBillWhenAPersonCancelsIt) {
    world_.calls.during = [] {
        throw QORCancelled();
    };
    change();
    EXPECT_TRUE(window_->IsOutOfDate());
    EXPECT_EQ(window_.tree(), "Bom(P)");
    EXPECT_THROW(Window(&desk_.frmEditor(), &root_, kTree), QORCancelled) << "there is no last bill";
    world_.calls.during = nullptr;
    change();
    EXPECT_FALSE(window_->IsOutOfDate());
}

TEST_F(Rebuild, NoLongerComesOnceAPersonHasClosedTheWindow) {
    const QORVar<QORFrmWindow> held(&*window_);
    window_->AddRef(); // what closing spends
    window_->ReportClose();
    change();
    window_->UpdateBom();
    EXPECT_EQ(count(), 0);
}

} // namespace
