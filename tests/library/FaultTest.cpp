// What stands after a model that raises, and after memory that runs out, at every place in turn: nothing is left over,
// the last result is served on, and the next one is right.

#include "library/Bills.h"
#include "library/WindowDesk.h"
#include "planner/PlanText.h"
#include "support/Allocations.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/notification/QORSPPActivityNotification.h"

#include <new>
#include <tuple>

using namespace testmodel;

namespace {

/// What comes between, at the turn that it is told.
struct Fault {
    const char* name;
    std::function<void(int)> arm;
    std::function<bool()> disarm; ///< whether its turn came
    bool mayPass;                 ///< whether what it meets can do without, and so go on
};

Fault modelRaises(World& world) {
    return {"the model raises",
            [&world](int turn) {
                world.calls.count = 0;
                world.calls.raiseAt = turn;
            },
            [&world] { return std::exchange(world.calls.raiseAt, 0) <= world.calls.count; }, false};
}

Fault memoryRunsOut(allocations::Failure failure) {
    return {failure == allocations::Failure::Once ? "one allocation fails" : "memory is full",
            [failure](int turn) { allocations::failAt(turn, failure); }, &allocations::stopFailing, true};
}

/// Work that can be done again and again, and what is to be seen of it: the same each time.
struct Work {
    std::function<void()> run;
    std::function<std::string()> result;
};

/// Gives whether the work raised, in one of the ways in which it may.
bool raises(const Work& work) {
    try {
        work.run();
        return false;
    } catch (const std::bad_alloc&) {
    } catch (const std::runtime_error&) {
    }
    return true;
}

void expectNoMore(const std::map<std::string, long>& before) {
    for (const auto& [name, count] : QORLivingObjects()) {
        const auto found = before.find(name);
        EXPECT_LE(count, found == before.end() ? 0 : found->second) << name;
    }
}

/// Each turn in the beginning, then ever fewer.
int turnAfter(int turn) {
    return turn + 1 + turn / 1000;
}

/// Disturbs the work at one turn and does it again without. Gives whether the turn has come, and how many blocks are
/// left.
std::pair<bool, long> disturbAt(int turn, const Work& work, const Fault& fault) {
    const std::string right = work.result();
    const auto objects = QORLivingObjects();
    const long blocks = allocations::living();
    fault.arm(turn);
    const bool raised = raises(work);
    const bool hasCome = fault.disarm();
    EXPECT_TRUE(raised ? hasCome : !hasCome || fault.mayPass);
    EXPECT_EQ(work.result(), right) << "the last one";
    expectNoMore(objects);
    work.run();
    EXPECT_EQ(work.result(), right) << "the next one";
    expectNoMore(objects);
    return {hasCome, allocations::living() - blocks};
}

void disturbEverywhere(const Work& work, const Fault& fault) {
    SCOPED_TRACE(fault.name);
    work.run();
    bool hasCome = true;
    int turn = 0;
    while (hasCome && !testing::Test::HasFailure()) {
        turn = turnAfter(turn);
        SCOPED_TRACE(turn);
        long left = 0;
        std::tie(hasCome, left) = disturbAt(turn, work, fault);
        // What is kept for the life of the process from then on is kept once.
        EXPECT_TRUE(left <= 0 || disturbAt(turn, work, fault).second <= 0) << left << " blocks are left over";
    }
    EXPECT_GT(turn, 10);
}

void disturbEverywhere(const Work& work) {
    disturbEverywhere(work, memoryRunsOut(allocations::Failure::Once));
    disturbEverywhere(work, memoryRunsOut(allocations::Failure::Lasting));
}

void disturbEverywhere(const Work& work, World& world) {
    disturbEverywhere(work, modelRaises(world));
    disturbEverywhere(work);
}

std::string resultOf(VXMBomGenerator& generator) {
    return bomText(generator.GetBom(0)) + " / " + listText(generator.GetPreviewObjects());
}

struct Row {
    const char* name;
    const char* drawing;
    Root kind;
};

void PrintTo(const Row& row, std::ostream* stream) {
    *stream << row.name;
}

const Row kRows[] = {
    {"Process", "S1: +A(P Q[X]) *w | S2@station { L@loading: +Y | M } | S3: -P >O[P A] =Y { T1, T2 } ; S3>S1",
     Root::Process},
    {"Sections", "S1: +P +A(Q R) | F1 | F2: -P =Q | J: =P >O, G: -A +Z | K: =A ; S1>G G>J F1>J J>S1 J>K F2>F2",
     Root::Process},
    {"ManyLeave",
     "S1: +A +B +C +D +E +F +G +H +I +J +K +L +M +N +O +P +Q +R +S +T +U +V | "
     "S2: -A -B -C -D -E -F -G -H -I -J -K -L -M -N -O -P -Q -R | S3: +A +B +C +D +E +F +G +H =I =J =K =L =M =N",
     Root::Process},
    {"Resource", "R@resource: +A(P) ( C1@resource: *w >O[P] | C2@resource { A1: +Q | C3@resource: +X } )",
     Root::Resource},
};

class Faults : public testing::TestWithParam<Row> {
protected:
    World world_;
    Thing& root_ = draw(world_, GetParam().kind, GetParam().drawing);
};

TEST_P(Faults, LeaveTheLastBillInPlace) {
    for (const Algorithm algorithm : {Algorithm::Present, Algorithm::Legacy}) {
        const auto generator = makeGenerator(root_, GetParam().kind, algorithm);
        const Work work{[&] { generator->GetBom(1); },
                        [&] {
                            return resultOf(*generator);
                        }};
        const DOM_Document last = generator->GetBom(1);
        world_.calls.raiseAt = world_.calls.count + 1;
        EXPECT_TRUE(raises(work));
        EXPECT_EQ(generator->GetBom(0), last);
        EXPECT_EQ(generator->GetTopNode(), nullptr) << "what was begun is gone";
        world_.calls.raiseAt = 0;
        disturbEverywhere(work, world_);
    }
}

TEST_P(Faults, LeaveNothingOfAFirstBill) {
    for (const Algorithm algorithm : {Algorithm::Present, Algorithm::Legacy}) {
        std::string bill;
        const Work work{[&] { bill = resultOf(*makeGenerator(root_, GetParam().kind, algorithm)); },
                        [&] {
                            return bill;
                        }};
        disturbEverywhere(work, world_);
    }
}

TEST_P(Faults, LeaveTheLastBillInAWindow) {
    editing::Desk desk(editing::kShop);
    QOREventSubscriber& publisher = *desk.plan().process()->GetEventPublisher();
    for (const int mode : {1, 3}) {
        const editing::Window window(&desk.frmEditor(), &root_, mode);
        const Work work{[&] { QORSPPActivityNotificationDispatcher::Dispatch(publisher, 29); },
                        [&] {
                            return resultOf(*window->GetGenerator());
                        }};
        const std::string tree = window.tree();
        disturbEverywhere(work, world_);
        EXPECT_EQ(window.tree(), tree);
        EXPECT_FALSE(window->IsOutOfDate());
    }
}

TEST_P(Faults, LeaveNothingOfAWindowThatOpens) {
    editing::Desk desk(editing::kShop);
    for (const int mode : {1, 2, 3}) {
        std::string tree;
        const Work work{[&] { tree = editing::Window(&desk.frmEditor(), &root_, mode).tree(); },
                        [&] {
                            QORDialogLoop::Get().Run();
                            return tree;
                        }};
        disturbEverywhere(work, world_);
        EXPECT_EQ(desk.plan().process()->GetEventPublisher()->GetSubscriptionCount(), 1) << "the session's";
    }
}

INSTANTIATE_TEST_SUITE_P(Plans, Faults, testing::ValuesIn(kRows),
                         [](const auto& each) { return std::string(each.param.name); });

TEST(MemoryRunsOut, WhileAPlanIsRead) {
    for (const std::string& text : {std::string(editing::kWorld), std::string(editing::kWorld) + "]"}) {
        std::string result;
        const Work work{[&] {
                            const planner::ReadResult read = planner::parsePlan(text, "p", "title");
                            result = read.plan ? editing::billsOf(*read.plan) : read.errors.at(0);
                        },
                        [&] {
                            return result;
                        }};
        disturbEverywhere(work);
    }
}

} // namespace
