#pragma once

#include "planner/edit/EditSession.h"

#include <functional>

namespace editing {

/// Edits of a plan, one after the other as they are chosen, and steps of undo and redo.
class RandomEdits {
public:
    /// Gives one of the numbers below a limit, which is 1 or more.
    using Choose = std::function<std::size_t(std::size_t limit)>;

    RandomEdits(Session& session, Choose choose) : session_(session), choose_(std::move(choose)) {}

    /// Makes one edit, a group of two, or one step of undo or redo, or tries what is refused.
    void step();

    int refused() const { return refused_; }

private:
    planner::PlanEditor& editor() const { return session_.editor(); }
    planner::Plan& plan() const { return session_.plan(); }
    std::size_t below(std::size_t limit) const { return choose_(limit); }
    std::size_t position() const { return below(3) == 0 ? below(4) : planner::kAtEnd; }
    std::string newId() const { return "n" + std::to_string(below(40)); } // some are taken
    planner::Relation relation() const { return planner::kRelations[below(planner::kRelations.size())]; }

    planner::FlowObject& anyFlow() const;
    planner::Item& anyItem() const;
    planner::ModelObject& anyOwner() const;
    std::vector<planner::FlowObject*> flows() const;

    void tryEdit();
    void addActivity();
    void move();
    void remove();
    void addLink();
    void removeLink();
    void putItem();
    void takeItem();
    void makeList();
    void dropList();
    void addItem();
    void removeItem();
    void setType();
    void rename();
    void addResource();
    void changeBehaviour();
    void putResource();
    void changeKind();
    void changeText();
    void changeId();
    void reorder();
    void changePresence();

    Session& session_;
    Choose choose_;
    int refused_ = 0;
};

} // namespace editing
