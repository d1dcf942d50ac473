#pragma once

#include "planner/edit/ChangeKind.h"
#include "planner/edit/ListRef.h"
#include "planner/edit/Mentions.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace planner {

/// The smallest thing that is done and undone: undoing restores exactly what was, positions and absent lists included.
class Change {
public:
    explicit Change(KindPair kinds) : kinds_(kinds) {}
    virtual ~Change() = default;
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

    virtual void apply() = 0;
    virtual void revert() = 0;

    /// The change is taken back and never comes again: what it alone kept goes.
    virtual void forget() {}

    const KindPair& kinds() const { return kinds_; }

private:
    KindPair kinds_;
};

/// A position in a list, and the object that the list belongs to; null for a list of the plan itself.
struct Spot {
    ListRef list;
    ModelObject* owner;
    std::size_t position;
};

/// An object that comes into a list, leaves one, or leaves one for another. The second position counts without the
/// object.
class ListMove final : public Change {
public:
    ListMove(KindPair kinds, Mentions& mentions, ModelObject& object, std::optional<Spot> from, std::optional<Spot> to)
        : Change(kinds), mentions_(mentions), object_(object), from_(from), to_(to) {}

    void apply() override;
    void revert() override;

private:
    void putIn(Spot& spot);
    void takeOut(Spot& spot);

    Mentions& mentions_;
    ModelObject& object_;
    std::optional<Spot> from_;
    std::optional<Spot> to_;
    bool wasPresent_ = true; // the list that the object came into
};

/// Objects that belong to the plan from now on, or no longer do. Their ids come and go with them.
class Standing final : public Change {
public:
    enum Direction { Entering, Leaving };

    Standing(Plan& plan, Mentions& mentions, std::vector<ModelObject*> objects, Direction direction)
        : Change({}), plan_(plan), mentions_(mentions), objects_(std::move(objects)), direction_(direction) {}

    void apply() override { direction_ == Entering ? enter() : leave(); }
    void revert() override { direction_ == Entering ? leave() : enter(); }

    /// Objects that were made for entering end.
    void forget() override;

private:
    void enter();
    void leave();

    Plan& plan_;
    Mentions& mentions_;
    std::vector<ModelObject*> objects_;
    Direction direction_;
};

/// A value that takes the place of another: swap() exchanges the two, whatever way it goes.
template <class Swap>
class Exchange final : public Change {
public:
    Exchange(KindPair kinds, Swap swap) : Change(kinds), swap_(std::move(swap)) {}

    void apply() override { swap_(); }
    void revert() override { swap_(); }

private:
    Swap swap_;
};

template <class Swap>
std::unique_ptr<Change> makeExchange(KindPair kinds, Swap swap) {
    return std::make_unique<Exchange<Swap>>(kinds, std::move(swap));
}

} // namespace planner
