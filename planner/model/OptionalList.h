#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace planner {

/// A list that may be absent, which is another thing than an empty one. Costs one pointer while absent.
template <class T>
class OptionalList {
public:
    using Entries = std::vector<T>;

    bool present() const { return entries_ != nullptr; }

    /// Number of entries, 0 when absent.
    std::size_t size() const { return entries_ ? entries_->size() : 0; }
    bool empty() const { return size() == 0; }

    /// The entries, none when absent.
    const std::vector<T>& entries() const {
        static const std::vector<T> none;
        return entries_ ? *entries_ : none;
    }
    auto begin() const { return entries().begin(); }
    auto end() const { return entries().end(); }

    /// The entries to change; the list is present from here on.
    std::vector<T>& make() {
        if (!entries_) {
            entries_ = std::make_unique<std::vector<T>>();
        }
        return *entries_;
    }
    void add(T entry) { make().push_back(std::move(entry)); }

    /// Back to absent.
    void reset() { entries_.reset(); }

private:
    std::unique_ptr<std::vector<T>> entries_;
};

} // namespace planner
