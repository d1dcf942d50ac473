// Links of the flow.

#include "planner/edit/Checks.h"
#include "planner/edit/PlanEditor.h"

#include <algorithm>

namespace planner {

namespace {

/// A link that comes into the plan at its end, or leaves it.
class LinkChange final : public Change {
public:
    enum Direction { Adding, Taking };

    LinkChange(Plan& plan, Link& link, Direction direction)
        : Change(direction == Adding ? KindPair{ChangeKind::LinkAdded, ChangeKind::LinkGone}
                                     : KindPair{ChangeKind::LinkGone, ChangeKind::LinkAdded}),
          plan_(plan), link_(link), direction_(direction), wasPresent_(plan.links().present()), before_(link.next) {}

    void apply() override { direction_ == Adding ? put() : take(); }
    void revert() override { direction_ == Adding ? take() : put(); }
    void forget() override {
        if (direction_ == Adding) {
            plan_.discardLink(link_);
        }
    }

private:
    void put() { plan_.putLink(link_, before_); }
    void take() {
        plan_.takeLink(link_);
        if (direction_ == Adding) {
            plan_.setLinksPresent(wasPresent_);
        }
    }

    Plan& plan_;
    Link& link_;
    Direction direction_;
    bool wasPresent_;
    Link* before_; // what stands behind the link when it is in the list; as long as the change can be made, it is there
};

void checkFlowEnd(const Plan& plan, const FlowObject& object) {
    checkStands(plan, object);
    if (object.sort() == Sort::Behaviour && object.id().empty()) {
        throw EditError(EditError::Fault::WrongSort, "a behaviour without an id can't be linked");
    }
}

} // namespace

void PlanEditor::addLink(FlowObject& from, FlowObject& to) {
    checkFlowEnd(plan(), from);
    checkFlowEnd(plan(), to);
    perform("Link " + quoted(from) + " to " + quoted(to), [&] {
        ownProcess(from);
        ownProcess(to);
        open_->make(std::make_unique<LinkChange>(plan(), plan().newLink(from, to), LinkChange::Adding));
    });
}

void PlanEditor::removeLink(FlowObject& from, FlowObject& to) {
    checkStands(plan(), from);
    checkStands(plan(), to);
    // Either view has the link; the shorter one is looked at.
    const LinkView& view = from.linksOut().size() < to.linksIn().size() ? from.linksOut() : to.linksIn();
    const auto link = std::find_if(view.begin(), view.end(),
                                   [&](const Link* each) { return each->from == &from && each->to == &to; });
    if (link == view.end()) {
        throw EditError(EditError::Fault::NoSuchPlace, "there is no link from " + quoted(from) + " to " + quoted(to));
    }
    perform("Remove the link from " + quoted(from) + " to " + quoted(to), [&] { takeLink(**link); });
}

void PlanEditor::takeLink(Link& link) {
    open_->make(std::make_unique<LinkChange>(plan(), link, LinkChange::Taking));
}

} // namespace planner
