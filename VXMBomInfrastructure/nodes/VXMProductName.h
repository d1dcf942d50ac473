#pragma once

#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// Name that a bill shows for a product: an assembly's, a product's instance name, an item's; "TOPNODE" for null, and
/// "not defined" for an object that has none of these.
QORUnicodeString VXMNameOfProduct(const QORBaseUnknown_var& iProduct);
