#pragma once

#include "planner/model/Plan.h"

#include <memory>
#include <string>

namespace bench {

/// A plan with the object that its bill is made of.
struct Sample {
    std::unique_ptr<planner::Plan> plan = std::make_unique<planner::Plan>();
    planner::ModelObject* root = nullptr;
};

/// A plan in the making. Ids are a prefix and a number; names are the ids.
class PlanDraft {
public:
    PlanDraft();

    planner::Activity& root() { return *plan().process(); }

    /// A new activity that stands in another.
    planner::Activity& step(planner::Activity& parent, const char* prefix, int number);

    planner::Item& item(planner::ItemKind kind, const char* prefix, int number);
    planner::Product& product(const char* prefix, int number);

    /// A new resource with a behaviour, in another or at the top.
    planner::Resource& resource(planner::Resource* parent, const char* prefix, int number);

    void link(planner::FlowObject& from, planner::FlowObject& to) { plan().addLink(from, to); }

    /// Numbers the plan and gives it away. Without a root the process is it.
    Sample finish(planner::ModelObject* root = nullptr);

private:
    planner::Plan& plan() { return *sample_.plan; }
    void name(planner::ModelObject& object, const char* prefix, int number);

    Sample sample_;
};

} // namespace bench
