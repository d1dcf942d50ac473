#pragma once

#include <QTreeView>

#include <vector>

class QORNavigBox;
class QORNavigInstance;

namespace planner::desktop {

class TreeModel;

/// What a person sees of a tree box. Rows come as they are opened, and further ones as they come near: a long list
/// costs what is seen of it. What a person does is reported to the box.
class TreeView : public QTreeView {
    Q_OBJECT

public:
    TreeView(QORNavigBox& box, TreeModel& model, QWidget* parent);

    /// The box, null when it has ended.
    QORNavigBox* box() const { return box_; }

    /// The box ends: the view is empty from then on.
    void release();

    /// Show what the box says is selected, and take over its controller's settings.
    void showSelection();
    void followSettings();

    /// Opens the tree down to the row at the end of a path of positions from the root on, counted from 1, and selects
    /// it. False where there is none.
    bool reveal(const std::vector<int>& path);

    /// Opens rows level by level, until so many are there. False when there would be more.
    bool openAll(int most);

Q_SIGNALS:
    /// The tree has been filled anew.
    void refilled();

    /// A person has chosen other rows.
    void picked();

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void reportOpen(const QModelIndex& index);
    void reportClosed(const QModelIndex& index);
    void fetch(const QModelIndex& above);

    QORNavigBox* box_;
    TreeModel& model_;
    bool showing_ = false;
};

} // namespace planner::desktop
