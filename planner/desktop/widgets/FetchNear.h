#pragma once

#include <QObject>

#include <functional>

class QModelIndex;
class QTreeView;

namespace planner::desktop {

/// Asks for further rows of a tree as they come near, so that a long list costs what is seen of it.
class FetchNear : public QObject {
    Q_OBJECT

public:
    /// Is called with the row above (invalid for none) of each list whose last row so far is in sight.
    using Fetch = std::function<void(const QModelIndex& above)>;

    /// Belongs to the view.
    FetchNear(QTreeView& view, Fetch fetch);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void look();

    QTreeView& view_;
    Fetch fetch_;
    bool isDue_ = false;
};

} // namespace planner::desktop
