#pragma once

#include "QORPlatform/toolkit/QORViewerPeer.h"

#include <QWidget>

namespace planner::desktop {

/// Peer of a viewer, with the widget that a person sees. The widget belongs to its parent and may outlive the peer: it
/// shows nothing of the viewer any more then.
class ViewPeer : public QORViewerPeer {
public:
    virtual QWidget& widget() = 0;
};

} // namespace planner::desktop
