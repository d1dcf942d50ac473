#pragma once

#include "VXMBomInfrastructure/model/QORISPPFlowMgt.h"

#include <memory>
#include <optional>

/// What a walk asks of an activity's surroundings: children of every type, and links of the type "Activity".
namespace VXMActivityLinks {

/// The direct children, null when the object has no child management or gives no list.
std::unique_ptr<QORListValQORBaseUnknown_var> Children(const QORBaseUnknown_var& iActivity);

QORListValQORBaseUnknown_var Successors(const QORISPPFlowMgt_var& iFlow);

/// The first predecessor, none when there is no predecessor. The handle itself may be null.
std::optional<QORBaseUnknown_var> FirstPredecessor(const QORISPPFlowMgt_var& iFlow);

/// Whether there is any predecessor or successor.
bool HasLinks(const QORISPPFlowMgt_var& iFlow);

} // namespace VXMActivityLinks
