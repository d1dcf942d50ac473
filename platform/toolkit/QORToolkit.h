#pragma once

#include "QORPlatform/text/QORExport.h"
#include "QORPlatform/toolkit/QORFrmWindowPeer.h"
#include "QORPlatform/toolkit/QORNavigBoxPeer.h"
#include "QORPlatform/toolkit/QORViewerPeer.h"

/// All that the platform wants from a toolkit: a peer for each thing that a person sees.
class QORToolkit : public QORFrmWindowToolkit, public QORViewerToolkit, public QORNavigBoxToolkit {};

/// Toolkit for all that is made from now on; null for none, as at first. Stays the caller's, who keeps it as long as it
/// is set.
QOR_EXPORT void QORSetToolkit(QORToolkit* iToolkit);
