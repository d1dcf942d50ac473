#include "planner/model/LinkList.h"

namespace planner {

namespace {

/// Distance of the numbers of neighbours that are numbered afresh.
constexpr std::uint64_t kGap = std::uint64_t(1) << 32U;

} // namespace

Link* LinkList::at(std::size_t position) const {
    if (position >= size_) {
        return nullptr;
    }
    Link* link = first_;
    while (position-- > 0) {
        link = link->next;
    }
    return link;
}

Link& LinkList::make(FlowObject& from, FlowObject& to) {
    if (unused_.empty()) {
        return links_.emplace_back(Link{&from, &to});
    }
    Link& link = *unused_.back();
    unused_.pop_back();
    return link = Link{&from, &to};
}

void LinkList::put(Link& link, Link* before) {
    link.next = before;
    link.previous = before ? before->previous : last_;
    (link.previous ? link.previous->next : first_) = &link;
    (before ? before->previous : last_) = &link;
    ++size_;
    present_ = true;
    giveOrder(link);
}

void LinkList::take(Link& link) {
    (link.previous ? link.previous->next : first_) = link.next;
    (link.next ? link.next->previous : last_) = link.previous;
    link.previous = nullptr;
    link.next = nullptr;
    --size_;
}

void LinkList::giveOrder(Link& link) {
    const std::uint64_t low = link.previous ? link.previous->order : 0;
    if (!link.next) {
        link.order = low + kGap;
        return;
    }
    link.order = low + (link.next->order - low) / 2;
    if (link.order == low) {
        giveOrders();
    }
}

void LinkList::giveOrders() {
    std::uint64_t order = 0;
    for (Link* link = first_; link; link = link->next) {
        link->order = order += kGap;
    }
}

} // namespace planner
