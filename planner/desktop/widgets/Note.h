#pragma once

#include <QLabel>

namespace planner::desktop {

/// A quiet text in the place of what isn't there: why a pane is empty, and what a person may do about it.
class Note : public QLabel {
public:
    explicit Note(const QString& text, QWidget* parent = nullptr);
};

} // namespace planner::desktop
