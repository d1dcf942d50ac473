// Links of the flow.

#include "planner/edit/Checks.h"
#include "planner/edit/PlanEditor.h"

#include <algorithm>

namespace planner {

namespace {

/// A link that comes into the plan in front of another, or leaves it.
class LinkChange final : public Change {
public:
    enum Direction { Adding, Returning, Taking };

    /// What stands behind the link when it is in the list is null for the end. As long as the change can be made or
    /// taken back, it is there.
    LinkChange(Plan& plan, Link& link, Direction direction, Link* before)
        : Change(direction == Taking ? KindPair{ChangeKind::LinkGone, ChangeKind::LinkAdded}
                                     : KindPair{ChangeKind::LinkAdded, ChangeKind::LinkGone}),
          plan_(plan), link_(link), direction_(direction), wasPresent_(plan.links().present()), before_(before) {}

    void apply() override { direction_ == Taking ? take() : put(); }
    void revert() override { direction_ == Taking ? put() : take(); }
    void forget() override {
        if (direction_ == Adding) {
            plan_.discardLink(link_);
        }
    }

private:
    void put() { plan_.putLink(link_, before_); }
    void take() {
        plan_.takeLink(link_);
        plan_.setLinksPresent(wasPresent_);
    }

    Plan& plan_;
    Link& link_;
    Direction direction_; // a link that returns was the plan's before the step
    bool wasPresent_;
    Link* before_;
};

void checkFlowEnd(const Plan& plan, const FlowObject& object) {
    checkStands(plan, object);
    if (object.sort() == Sort::Behaviour && object.id().empty()) {
        throw EditError(EditError::Fault::WrongSort, "a behaviour without an id can't be linked");
    }
}

Link& firstLink(FlowObject& from, FlowObject& to) {
    // Either view has the link; the shorter one is looked at.
    const LinkView& view = from.linksOut().size() < to.linksIn().size() ? from.linksOut() : to.linksIn();
    const auto link = std::find_if(view.begin(), view.end(),
                                   [&](const Link* each) { return each->from == &from && each->to == &to; });
    if (link == view.end()) {
        throw EditError(EditError::Fault::NoSuchPlace, "there is no link from " + quoted(from) + " to " + quoted(to));
    }
    return **link;
}

} // namespace

void PlanEditor::addLink(FlowObject& from, FlowObject& to, std::size_t position) {
    checkFlowEnd(plan(), from);
    checkFlowEnd(plan(), to);
    const std::size_t at = checkedPosition(position, plan().links().size());
    perform("Link " + quoted(from) + " to " + quoted(to), [&] {
        ownProcess(from);
        ownProcess(to);
        open_->make(
            std::make_unique<LinkChange>(plan(), plan().newLink(from, to), LinkChange::Adding, plan().linkAt(at)));
    });
}

void PlanEditor::removeLink(FlowObject& from, FlowObject& to) {
    checkStands(plan(), from);
    checkStands(plan(), to);
    Link& link = firstLink(from, to);
    perform("Remove the link from " + quoted(from) + " to " + quoted(to), [&] { takeLink(link); });
}

void PlanEditor::moveLink(FlowObject& from, FlowObject& to, std::size_t position) {
    checkStands(plan(), from);
    checkStands(plan(), to);
    Link& link = firstLink(from, to);
    const std::size_t at = checkedPosition(position, plan().links().size() - 1);
    perform("Move the link from " + quoted(from) + " to " + quoted(to), [&] {
        takeLink(link);
        open_->make(std::make_unique<LinkChange>(plan(), link, LinkChange::Returning, plan().linkAt(at)));
    });
}

void PlanEditor::takeLink(Link& link) {
    open_->make(std::make_unique<LinkChange>(plan(), link, LinkChange::Taking, link.next));
}

} // namespace planner
