#pragma once

#include <QString>

class QWidget;

namespace planner::desktop {

/// The path that a person has chosen to save to, with the ending, "csv", where its name has none. A file that has this
/// longer name was not asked about: it is here. Empty when there is nothing to write to.
QString withEnding(QWidget* window, const QString& path, const QString& ending);

} // namespace planner::desktop
