#pragma once

#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/notification/QOREventSubscriber.h"

#include <string_view>

namespace planner {

/// Publishes the changes of one plan, for the plan's root activity. Lives as long as anybody counts on it, so that who
/// is subscribed can still unsubscribe when the plan is gone.
class PlanPublisher final : public QOREventSubscriber, private QORCounted<PlanPublisher> {
public:
    static constexpr std::string_view kCountName = "planner::PlanPublisher";
};

} // namespace planner
