#include "planner/desktop/toolkit/LoopHook.h"

#include "QORPlatform/dialog/QORDialogLoop.h"

#include <QAbstractEventDispatcher>

namespace planner::desktop {

LoopHook::LoopHook() {
    QORDialogLoop::Get().SetPeer(this);
    // What couldn't end yet, since its handler was on the stack, can do so later.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [] { QORDialogLoop::Get().Run(); });
}

LoopHook::~LoopHook() {
    QORDialogLoop::Get().SetPeer(nullptr);
}

void LoopHook::WorkWaits() {
    QMetaObject::invokeMethod(
        this, [] { QORDialogLoop::Get().Run(); }, Qt::QueuedConnection);
}

} // namespace planner::desktop
