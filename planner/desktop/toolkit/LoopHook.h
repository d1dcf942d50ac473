#pragma once

#include "QORPlatform/toolkit/QORLoopPeer.h"

#include <QObject>

namespace planner::desktop {

/// Runs the platform's dialog loop whenever Qt's event loop is about to wait, and as soon as something waits for it.
/// There is one while the application runs.
class LoopHook : public QObject, public QORLoopPeer {
    Q_OBJECT

public:
    LoopHook();
    ~LoopHook() override;

    void WorkWaits() override;
};

} // namespace planner::desktop
