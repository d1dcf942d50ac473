// Long sessions of random edits, undone and redone at random: after each the plan is a good file, its bills are those
// of the plan that the file gives, and undoing all of it leads back to the beginning.

#include "planner/PlanText.h"
#include "planner/edit/EditSession.h"
#include "support/BomText.h"

#include "VXMBomInfrastructure/process/VXMProcessBomGenerator.h"
#include "planner/model/Contents.h"

#include <gtest/gtest.h>

#include <random>

using editing::kWorld;
using editing::Session;
using planner::Activity;
using planner::FlowObject;
using planner::Resource;

namespace {

class RandomSession : public Session {
public:
    explicit RandomSession(unsigned seed) : Session(kWorld), random_(seed) {}

    /// Makes one edit, a group of two, or one step of undo or redo, or tries what is refused.
    void step() {
        const std::size_t choice = below(10);
        if (choice == 0) {
            editor().undo();
        } else if (choice == 1) {
            editor().redo();
        } else if (choice == 2) {
            editor().group("group", [&] {
                tryEdit();
                tryEdit();
            });
        } else {
            tryEdit();
        }
    }

    int refused() const { return refused_; }

private:
    std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }
    std::size_t position() { return below(3) == 0 ? below(4) : planner::kAtEnd; }
    std::string newId() { return "n" + std::to_string(below(40)); } // some are taken
    planner::Relation relation() { return planner::kRelations[below(planner::kRelations.size())]; }

    void tryEdit() {
        using Edit = void (RandomSession::*)();
        using R = RandomSession;
        constexpr Edit kEdits[] = {
            &R::addActivity, &R::addActivity,     &R::move,        &R::remove,        &R::remove,     &R::addLink,
            &R::addLink,     &R::putItem,         &R::putItem,     &R::putItem,       &R::removeLink, &R::takeItem,
            &R::makeList,    &R::dropList,        &R::addItem,     &R::removeItem,    &R::setType,    &R::rename,
            &R::addResource, &R::changeBehaviour, &R::putResource, &R::putResource,   &R::remove,     &R::changeKind,
            &R::changeText,  &R::changeId,        &R::reorder,     &R::changePresence};
        try {
            (this->*kEdits[below(std::size(kEdits))])();
        } catch (const planner::EditError&) {
            ++refused_;
        }
    }

    /// All that stands in the plan but items, in order.
    std::vector<FlowObject*> flows() {
        std::vector<FlowObject*> found;
        planner::walkPlan(plan(), [&](FlowObject& object, planner::ModelObject*) { found.push_back(&object); });
        return found;
    }
    FlowObject& anyFlow() {
        const auto all = flows();
        return *all[below(all.size())];
    }
    planner::Item& anyItem() {
        const auto& all = plan().items.entries();
        return needed(all.empty() ? nullptr : all[below(all.size())]);
    }
    planner::ModelObject& anyOwner() {
        return below(3) == 0 ? static_cast<planner::ModelObject&>(anyItem()) : anyFlow();
    }

    /// What an edit can't do without; otherwise it counts as refused.
    template <class T>
    static T& needed(T* object) {
        if (!object) {
            throw planner::EditError(planner::EditError::Fault::UnknownObject, "nothing to edit");
        }
        return *object;
    }
    void needRoom(std::size_t count, std::size_t limit) { needed(count < limit ? this : nullptr); }

    void addActivity() {
        needRoom(flows().size(), 16);
        editor().addActivity(anyFlow(), {newId(), {}, static_cast<planner::ActivityKind>(below(5))}, position());
    }
    void move() {
        FlowObject& object = anyFlow();
        if (auto* const resource = dynamic_cast<Resource*>(&object)) {
            editor().moveResource(*resource, dynamic_cast<Resource*>(&anyFlow()), position());
        } else {
            editor().moveActivity(needed(dynamic_cast<Activity*>(&object)), anyFlow(), position());
        }
    }
    void remove() {
        FlowObject& object = anyFlow();
        if (auto* const resource = dynamic_cast<Resource*>(&object)) {
            editor().removeResource(*resource);
        } else {
            editor().removeActivity(needed(dynamic_cast<Activity*>(&object)));
        }
    }
    void addLink() {
        needRoom(plan().links().size(), 12); // bills grow with the number of paths
        editor().addLink(anyFlow(), anyFlow());
    }
    void removeLink() {
        needRoom(0, plan().links().size());
        const planner::Link& link = *plan().links().begin();
        editor().removeLink(*link.from, *link.to);
    }
    void putItem() { editor().putItem(anyOwner(), relation(), anyItem(), position()); }
    void takeItem() { editor().takeItem(anyOwner(), relation(), below(3)); }
    void makeList() { editor().makeList(anyOwner(), relation()); }
    void dropList() { editor().dropList(anyOwner(), relation()); }
    void addItem() {
        needRoom(plan().items.size(), 10);
        editor().addItem({newId(), static_cast<planner::ItemKind>(below(4))}, position());
    }
    void removeItem() { editor().removeItem(anyItem()); }
    void setType() {
        editor().setFastenerType(needed(dynamic_cast<planner::Fastener*>(&anyItem())),
                                 below(2) == 0 ? "Rivet" : "Stud");
    }
    void rename() { editor().rename(anyOwner(), "N" + std::to_string(below(9))); }
    void addResource() {
        needRoom(flows().size(), 16);
        editor().addResource(dynamic_cast<Resource*>(&anyFlow()), {newId()}, position());
    }
    void changeBehaviour() {
        auto& resource = needed(dynamic_cast<Resource*>(&anyFlow()));
        if (resource.behaviour()) {
            editor().removeBehaviour(resource);
        } else {
            editor().addBehaviour(resource, below(2) == 0 ? "" : newId());
        }
    }

    void putResource() {
        editor().putItem(anyItem(), planner::Relation::Children, needed(dynamic_cast<Resource*>(&anyFlow())),
                         position());
    }
    void changeKind() {
        editor().setKind(needed(dynamic_cast<Activity*>(&anyFlow())), static_cast<planner::ActivityKind>(below(5)));
    }
    void changeText() {
        switch (below(4)) {
        case 0:
            return editor().setTitle("T" + std::to_string(below(9)));
        case 1:
            return editor().setNotes(anyOwner(), "[" + std::to_string(below(9)) + " ]");
        case 2:
            return editor().setType(needed(dynamic_cast<Activity*>(&anyFlow())), "T");
        default:
            return editor().rename(anyOwner(), std::nullopt);
        }
    }
    void changeId() { editor().changeId(anyOwner(), below(4) == 0 ? "" : newId()); }
    void reorder() {
        switch (below(3)) {
        case 0:
            return editor().moveItem(anyItem(), below(4));
        case 1:
            return editor().moveEntry(anyOwner(), relation(), below(3), below(3));
        default:
            needRoom(0, plan().links().size());
            const planner::Link& link = *plan().links().begin();
            return editor().moveLink(*link.from, *link.to, below(4));
        }
    }
    void changePresence() {
        FlowObject& object = anyFlow();
        below(2) == 0 ? editor().makeActivities(object) : editor().dropActivities(object);
    }

    std::mt19937 random_;
    int refused_ = 0;
};

class RandomEdits : public testing::TestWithParam<unsigned> {};

TEST_P(RandomEdits, KeepThePlanGood) {
    constexpr int kEdits = 250;
    RandomSession session(GetParam());
    const std::string first = session.text();
    VXMProcessBomGenerator rebuilt(QORBaseUnknown_var(session.plan().process()));
    for (int i = 0; i < kEdits; ++i) {
        session.step();
        const std::string now = session.text();
        const auto reread = plantext::read(now);
        ASSERT_TRUE(reread) << "edit " << i << ", " << session.editor().undoText() << '\n' << now;
        ASSERT_EQ(plantext::written(*reread), now) << "edit " << i << ", " << session.editor().undoText();
        ASSERT_EQ(testmodel::bomText(rebuilt.GetBom(1)), editing::billUnder(*reread->process())) << now;
        ASSERT_EQ(editing::billsOf(session.plan()), editing::billsOf(*reread)) << now;
    }
    EXPECT_GT(session.refused(), 0);
    EXPECT_LT(session.refused(), kEdits * 3 / 4);
    while (session.editor().undo()) {
    }
    EXPECT_EQ(session.text(), first);
    while (session.editor().redo()) {
    }
    session.expectGoodFile();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Range(1U, 5U));

} // namespace
