#pragma once

#include "planner/questions/check/Check.h"
#include "planner/questions/check/ReachedFlow.h"
#include "planner/text/Words.h"

#include <string>
#include <utility>
#include <vector>

namespace planner {

/// What the checks share while one plan is looked at.
struct CheckWork {
    Plan& plan;
    ModelObject& root;
    VXMBomGenerator& generator;
    const Bill& bill;
    ReachedFlow flow;
    std::vector<Finding> findings;

    void add(CheckCode code, const ModelObject& object, std::string message, std::string advice,
             std::vector<const ModelObject*> related = {}) {
        findings.push_back({code, &object, std::move(message), std::move(advice), {}, std::move(related)});
    }
};

// The checks, a topic per file. Each adds the findings of its codes.
void checkLoops(CheckWork& work);
void checkSteps(CheckWork& work);
void checkRemovals(CheckWork& work);
void checkFasteners(CheckWork& work);
void checkMentions(CheckWork& work);

/// An object as findings call it: its name in quotes, and its id when that is another text.
std::string called(const ModelObject& object);

/// Some of them by name, and how many more there are.
std::string calledAll(const std::vector<const ModelObject*>& objects);

} // namespace planner
