// What editing asks of a plan: objects and links that come and go.

#include "planner/model/Plan.h"

#include <algorithm>

namespace planner {

void Plan::nameNew(ModelObject& object, std::string id) {
    object.id_ = std::move(id);
    numberNext(object);
}

void Plan::enter(ModelObject& object) {
    object.stands_ = true;
    if (!object.id().empty()) {
        byId_.insert(object);
    }
}

void Plan::leave(ModelObject& object) {
    object.stands_ = false;
    if (!object.id().empty()) {
        byId_.erase(object);
    }
}

void Plan::changeId(ModelObject& object, std::string id) {
    leave(object);
    object.id_ = std::move(id);
    enter(object);
}

void Plan::discard(ModelObject& object) {
    // What is given up is among what was made last.
    const auto last = std::find(objects_.rbegin(), objects_.rend(), &object);
    *last = objects_.back();
    objects_.pop_back();
    object.forgetNeighbours();
    object.Release();
}

void Plan::ownProcess(std::string id) {
    setId(*process_, std::move(id));
    processIsDefault_ = false;
}

void Plan::disownProcess() {
    byId_.erase(*process_);
    process_->id_.clear();
    processIsDefault_ = true;
}

namespace {

LinkView::Entries::iterator placeOf(LinkView::Entries& view, const Link& link) {
    return std::lower_bound(view.begin(), view.end(), link.order,
                            [](const Link* each, std::uint64_t order) { return each->order < order; });
}

void putInView(LinkView& view, Link& link) {
    auto& entries = view.make();
    entries.insert(placeOf(entries, link), &link);
}

void takeFromView(LinkView& view, const Link& link) {
    auto& entries = view.make();
    entries.erase(placeOf(entries, link));
    if (entries.empty()) {
        view.reset();
    }
}

} // namespace

void Plan::putLink(Link& link, Link* before) {
    links_.put(link, before);
    putInView(link.from->linksOut_, link);
    putInView(link.to->linksIn_, link);
}

void Plan::takeLink(Link& link) {
    takeFromView(link.from->linksOut_, link);
    takeFromView(link.to->linksIn_, link);
    links_.take(link);
}

} // namespace planner
