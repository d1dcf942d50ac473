#pragma once

#include "planner/cli/Arguments.h"
#include "planner/model/Plan.h"

#include <memory>
#include <optional>
#include <string>

class VXMBomGenerator;

namespace planner {

/// The plan of that path; null after its errors were told. The text that it was read from goes where somebody wants it.
std::unique_ptr<Plan> loadPlan(const std::string& path, std::string* text = nullptr);

/// The object of a plan that is to be analysed: that of the id, the process without one. The plan's path is for
/// messages. Null after saying what is wrong.
ModelObject* findRoot(const Plan& plan, const std::optional<std::string>& root, const std::string& path);

/// What a command analyses.
struct Subject {
    std::unique_ptr<Plan> plan;
    ModelObject* root = nullptr; ///< the object of the plan to analyse, null when there is none
};

/// Reads PLAN and finds its --root, the process by default. Sets for this run what an analysis goes by: --fasteners,
/// --unassigned-fasteners and --legacy, as far as the command has them. Says what is wrong, and gives no root then.
Subject openSubject(const Arguments& arguments, std::string* text = nullptr);

/// The step of a plan, an activity or a resource, that an option names by its id or else by its name. Null after saying
/// that there is none, or that several have the name.
ModelObject* findStep(const Plan& plan, const Arguments& arguments, const std::string& option);

/// What a person should know of the bill of a root, as remarkOn gives it; and of one that is empty since the process
/// lists nothing, when resources stand beside it. Ask it after the bill was computed.
std::optional<std::string> remarkOnBill(const Plan& plan, const ModelObject& root, VXMBomGenerator& generator,
                                        bool billIsEmpty);

} // namespace planner
