#pragma once

#include "QORPlatform/framework/QORInterfaceID.h"
#include "QORPlatform/framework/QORStatus.h"
#include "QORPlatform/text/QORExport.h"

/// Makes an object of the class that is registered as iName and casts it to iInterface. On success *oInterface holds
/// the one reference, the caller's; with no such class, one that can't be created by name, or one that doesn't answer
/// the interface, *oInterface is null and the result negative, as it is for a null name or oInterface.
QOR_EXPORT QORStatus QORInstantiateComponent(const char* iName, const QORInterfaceID& iInterface, void** oInterface);
