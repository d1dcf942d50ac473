#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

namespace planner {

class FlowObject;

/// A directed link of the flow. It has its place in the plan's list, and the views of both its ends name it.
struct Link {
    FlowObject* from;
    FlowObject* to;

    // Kept by the list that the link is in.
    Link* previous = nullptr;
    Link* next = nullptr;
    std::uint64_t order = 0; ///< grows along the list
};

/// The links of a plan in order; may be absent, which is another thing than empty.
///
/// Links are chained, and each carries a number that grows along the chain. So one is put in or taken out anywhere at a
/// cost that doesn't grow with the list, and the place of a link in the views of its ends is found by its number. A
/// link that was taken out stays in memory and can come back; `discard` ends it.
class LinkList {
public:
    class Iterator {
    public:
        explicit Iterator(const Link* link) : link_(link) {}
        const Link& operator*() const { return *link_; }
        Iterator& operator++() {
            link_ = link_->next;
            return *this;
        }
        bool operator==(const Iterator&) const = default;

    private:
        const Link* link_;
    };

    bool present() const { return present_; }
    void setPresent(bool present) { present_ = present; }
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    Iterator begin() const { return Iterator(first_); }
    Iterator end() const { return Iterator(nullptr); }

    /// The link at a position from 0; null behind the last one.
    Link* at(std::size_t position) const;

    /// A new link that isn't in the list yet.
    Link& make(FlowObject& from, FlowObject& to);

    /// Puts a link that isn't in the list in front of another, null for the end. The list is present from here on.
    void put(Link& link, Link* before);

    /// Takes a link out.
    void take(Link& link);

    /// Ends a link that isn't in the list.
    void discard(Link& link) { unused_.push_back(&link); }

private:
    void giveOrder(Link& link);
    void giveOrders();

    std::deque<Link> links_;
    std::vector<Link*> unused_;
    Link* first_ = nullptr;
    Link* last_ = nullptr;
    std::size_t size_ = 0;
    bool present_ = false;
};

} // namespace planner
