#pragma once

#include <QStackedWidget>

class QTabWidget;

namespace planner::desktop {

class FramePane;

/// The middle of the main window: the open windows as tabs, or a note as long as there is none.
class BomArea : public QStackedWidget {
    Q_OBJECT

public:
    explicit BomArea(QWidget* parent = nullptr);

    void add(FramePane& pane);

    /// The window that a person works in, null for none.
    FramePane* current() const;

Q_SIGNALS:
    void currentChanged();

private:
    void remove(FramePane& pane);

    QTabWidget* tabs_;
};

} // namespace planner::desktop
