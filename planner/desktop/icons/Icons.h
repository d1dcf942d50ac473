#pragma once

#include "planner/model/ModelObject.h"

#include <QIcon>

namespace planner::desktop {

/// The icon of that name from the program's resources, sharp at any size and in the colours of the palette; a null icon
/// for a name that there is none for.
QIcon icon(const QString& name);

/// The icon of an object of a plan by its kind.
QIcon iconOf(const ModelObject& object);

} // namespace planner::desktop
