#pragma once

#include "planner/model/ModelObject.h"

#include <QIcon>

namespace planner::desktop {

/// Makes the program's drawings those that the platform gets by name (see QORIconResource). `icon` does so as well.
void bringIcons();

/// The icon of that name from the platform's resource, sharp at any size and in the colours of the palette; a null icon
/// for a name that there is none for.
QIcon icon(const QString& name);

/// The icon of an object of a plan by its kind.
QIcon iconOf(const ModelObject& object);

/// The same with the mark of a finding in its corner.
QIcon markedIconOf(const ModelObject& object);

} // namespace planner::desktop
