#pragma once

#include "QORPlatform/trace/QORTrace.h"

/// The one trace of this library. It comes and goes with it; hosts find it by its name, "VXMBomViewerTrace".
extern QORTrace VXMBomViewerTrace;
