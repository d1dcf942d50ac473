#include "planner/desktop/widgets/FetchNear.h"

#include <QEvent>
#include <QMetaObject>
#include <QTreeView>

#include <utility>
#include <vector>

namespace planner::desktop {

FetchNear::FetchNear(QTreeView& view, Fetch fetch) : QObject(&view), view_(view), fetch_(std::move(fetch)) {
    view_.viewport()->installEventFilter(this);
}

bool FetchNear::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint && !std::exchange(isDue_, true)) {
        QMetaObject::invokeMethod(this, &FetchNear::look, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void FetchNear::look() {
    isDue_ = false;
    std::vector<QPersistentModelIndex> ending;
    for (QModelIndex index = view_.indexAt({1, 1});
         index.isValid() && view_.visualRect(index).top() <= view_.viewport()->height();
         index = view_.indexBelow(index)) {
        if (index.row() + 1 == index.model()->rowCount(index.parent())) {
            ending.emplace_back(index.parent());
        }
    }
    for (const QPersistentModelIndex& above : ending) {
        fetch_(above);
    }
}

} // namespace planner::desktop
