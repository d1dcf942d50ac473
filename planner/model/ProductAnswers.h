#pragma once

#include "planner/model/ModelObject.h"

namespace planner {

/// New list of those objects that answer the named interface, null for an absent list.
QORListValQORBaseUnknown_var* newHandlesAnswering(const ObjectList& list, const char* interfaceName);

} // namespace planner
