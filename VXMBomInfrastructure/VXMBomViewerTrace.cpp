#include "VXMBomInfrastructure/VXMBomViewerTrace.h"

QORTrace VXMBomViewerTrace("VXMBomViewerTrace", "Traces for module VXMBomViewerTrace", 0, "STDERR", 1024);
