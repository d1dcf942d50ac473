#pragma once

#include "collections/QORRawColl.h"

/// Array of plain pointers.
using QORRawCollPV = QORRawColl<void*>;
