#pragma once

#include <QStackedWidget>

class QSplitter;
class QTabWidget;

namespace planner::desktop {

class FramePane;

/// The middle of the main window: the open windows as tabs, in one group or in several side by side. A page stands
/// there as long as none is open.
class BomArea : public QStackedWidget {
    Q_OBJECT

public:
    BomArea(QWidget* emptyPage, QWidget* parent = nullptr);

    void add(FramePane& pane);

    /// The window that a person works in, null for none.
    FramePane* current() const;
    std::vector<FramePane*> panes() const;

    /// Moves the current window into a group of its own at the right; all windows into one group.
    void split();
    void join();
    bool canSplit() const;
    bool isSplit() const;

Q_SIGNALS:
    void currentChanged();

private:
    QTabWidget* makeGroup();
    QTabWidget* groupOf(const QWidget* pane) const;
    std::vector<QTabWidget*> groups() const;
    void remove(FramePane& pane);
    void move(FramePane& pane, QTabWidget& group);
    void follow(QWidget* focused);
    void setCurrent(QTabWidget* group);

    QSplitter* splitter_;
    QTabWidget* current_ = nullptr;
};

} // namespace planner::desktop
