#pragma once

#include "frame/QORFrmWindowPeer.h"
#include "navigation/QORNavigBoxPeer.h"
#include "text/QORExport.h"
#include "visualization/QORViewerPeer.h"

/// All that the platform wants from a toolkit: a peer for each thing that a person sees.
class QORToolkit : public QORFrmWindowToolkit, public QORViewerToolkit, public QORNavigBoxToolkit {};

/// Toolkit for all that is made from now on; null for none, as at first. Stays the caller's, who keeps it as long as it
/// is set.
QOR_EXPORT void QORSetToolkit(QORToolkit* iToolkit);
