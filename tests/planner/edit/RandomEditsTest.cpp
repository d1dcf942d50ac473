// Long sessions of random edits, undone and redone at random: after each the plan is a good file, its bills are those
// of the plan that the file gives, and undoing all of it leads back to the beginning.

#include "planner/PlanText.h"
#include "planner/edit/EditSession.h"
#include "support/BomText.h"

#include "planner/model/Contents.h"
#include "process/VXMProcessBomGenerator.h"

#include <gtest/gtest.h>

#include <random>

using editing::kWorld;
using editing::Session;
using planner::ItemKind;
using planner::Relation;

namespace {

class RandomSession : public Session {
public:
    explicit RandomSession(unsigned seed) : Session(kWorld), random_(seed) {}

    /// Makes one edit, or one step of undo or redo, or tries what is refused.
    void step() {
        switch (below(10)) {
        case 0:
            editor().undo();
            break;
        case 1:
            editor().redo();
            break;
        case 2:
            editor().group("group", [&] {
                tryEdit();
                tryEdit();
            });
            break;
        default:
            tryEdit();
        }
    }

    int refused() const { return refused_; }

private:
    using Edit = void (RandomSession::*)();

    std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }
    std::size_t position() { return below(3) == 0 ? below(4) : planner::kAtEnd; }
    std::string newId() { return "n" + std::to_string(below(40)); } // some are taken
    Relation relation() { return planner::kRelations[below(planner::kRelations.size())]; }

    void tryEdit() {
        constexpr Edit kEdits[] = {
            &RandomSession::addActivity,    &RandomSession::addActivity,    &RandomSession::moveActivity,
            &RandomSession::removeActivity, &RandomSession::addLink,        &RandomSession::addLink,
            &RandomSession::removeLink,     &RandomSession::putItem,        &RandomSession::putItem,
            &RandomSession::putItem,        &RandomSession::takeItem,       &RandomSession::changeList,
            &RandomSession::addItem,        &RandomSession::removeItem,     &RandomSession::changeItem,
            &RandomSession::addResource,    &RandomSession::removeResource, &RandomSession::changeBehaviour};
        try {
            (this->*kEdits[below(std::size(kEdits))])();
        } catch (const planner::EditError&) {
            ++refused_;
        }
    }

    /// All that stands in the plan but items, in order.
    std::vector<planner::FlowObject*> flows() {
        std::vector<planner::FlowObject*> found;
        const auto enter = [&](planner::FlowObject& object, planner::ModelObject*) {
            found.push_back(&object);
        };
        planner::walkContents(*plan().process(), enter);
        for (planner::Resource* resource : plan().resources) {
            planner::walkContents(*resource, enter);
        }
        return found;
    }
    planner::FlowObject& anyFlow() {
        const auto all = flows();
        return *all[below(all.size())];
    }
    template <class T>
    T* any() {
        auto* const object = dynamic_cast<T*>(&anyFlow());
        return object;
    }
    planner::Item* anyItem() {
        const auto& all = plan().items.entries();
        return all.empty() ? nullptr : all[below(all.size())];
    }
    planner::ModelObject& anyOwner() {
        planner::Item* const item = anyItem();
        return item && below(3) == 0 ? static_cast<planner::ModelObject&>(*item) : anyFlow();
    }

    void addActivity() {
        if (flows().size() < 16) {
            editor().addActivity(anyFlow(), {newId(), {}, static_cast<planner::ActivityKind>(below(5))}, position());
        }
    }
    void moveActivity() {
        if (auto* const activity = any<planner::Activity>()) {
            editor().moveActivity(*activity, anyFlow(), position());
        } else if (auto* const resource = any<planner::Resource>()) {
            editor().moveResource(*resource, any<planner::Resource>(), position());
        }
    }
    void removeActivity() {
        if (auto* const activity = any<planner::Activity>()) {
            editor().removeActivity(*activity);
        }
    }
    void addLink() {
        if (plan().links().size() < 12) { // bills grow with the number of paths
            editor().addLink(anyFlow(), anyFlow());
        }
    }
    void removeLink() {
        if (!plan().links().empty()) {
            const planner::Link& link = *plan().links().begin();
            editor().removeLink(*link.from, *link.to);
        }
    }
    void putItem() {
        if (planner::Item* const item = anyItem()) {
            editor().putItem(anyOwner(), relation(), *item, position());
        }
    }
    void takeItem() { editor().takeItem(anyOwner(), relation(), below(3)); }
    void changeList() {
        if (below(2) == 0) {
            editor().makeList(anyOwner(), relation());
        } else {
            editor().dropList(anyOwner(), relation());
        }
    }
    void addItem() {
        if (plan().items.size() < 10) {
            editor().addItem({newId(), static_cast<ItemKind>(below(4))}, position());
        }
    }
    void removeItem() {
        if (planner::Item* const item = anyItem()) {
            editor().removeItem(*item);
        }
    }
    void changeItem() {
        planner::Item* const item = anyItem();
        if (auto* const fastener = dynamic_cast<planner::Fastener*>(item)) {
            editor().setFastenerType(*fastener, below(2) == 0 ? "Rivet" : "Stud");
        } else if (item) {
            editor().rename(*item, "N" + std::to_string(below(9)));
        }
    }
    void addResource() {
        if (flows().size() < 16) {
            editor().addResource(any<planner::Resource>(), {newId()}, position());
        }
    }
    void removeResource() {
        if (auto* const resource = any<planner::Resource>()) {
            editor().removeResource(*resource);
        }
    }
    void changeBehaviour() {
        if (auto* const resource = any<planner::Resource>()) {
            if (resource->behaviour()) {
                editor().removeBehaviour(*resource);
            } else {
                editor().addBehaviour(*resource, below(2) == 0 ? "" : newId());
            }
        }
    }

    std::mt19937 random_;
    int refused_ = 0;
};

class RandomEdits : public testing::TestWithParam<unsigned> {};

TEST_P(RandomEdits, KeepThePlanGood) {
    constexpr int kEdits = 500;
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
    EXPECT_LT(session.refused(), kEdits / 2);
    while (session.editor().undo()) {
    }
    EXPECT_EQ(session.text(), first);
    while (session.editor().redo()) {
    }
    session.expectGoodFile();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEdits, testing::Range(1U, 5U));

} // namespace
