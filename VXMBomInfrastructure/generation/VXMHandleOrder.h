#pragma once

#include "QORPlatform/framework/QORVar.h"
#include "VXMBomInfrastructure/VXMExport.h"

/// Orders handles by the addresses of the implementations behind them. A null handle on either side raises
/// QORNullVarError.
VXM_EXPORT bool operator<(const QORBaseUnknown_var& iLeft, const QORBaseUnknown_var& iRight);
