#pragma once

#include <QWidget>

class QAction;
class QVBoxLayout;

namespace planner::desktop {

/// What stands in the middle as long as no bill is open: the next things to do, as buttons.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

    /// A button for an action, with a line that says what it brings.
    void offer(QAction& action, const QString& text);

private:
    QVBoxLayout* column_;
};

} // namespace planner::desktop
