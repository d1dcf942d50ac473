#pragma once

#include "QORPlatform/collections/QORRawColl.h"

/// Array of plain pointers.
using QORRawCollPV = QORRawColl<void*>;
