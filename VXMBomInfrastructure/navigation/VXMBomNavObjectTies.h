#pragma once

#include "QORPlatform/navigation/QORINavigateObject.h"
#include "QORPlatform/navigation/QORINavigateObjectModify.h"
#include "QORPlatform/navigation/QORINavigateObjectPPR.h"
#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"

// The forwarders of VXMBomNavObject, and the factories that the dictionary knows them by.

class TIEQORINavigateObjectVXMBomNavObject final : public QORINavigateObjectTie<VXMBomNavObject> {
    using QORINavigateObjectTie<VXMBomNavObject>::QORINavigateObjectTie;
};
class TIEQORINavigateObjectPPRVXMBomNavObject final : public QORINavigateObjectPPRTie<VXMBomNavObject> {
    using QORINavigateObjectPPRTie<VXMBomNavObject>::QORINavigateObjectPPRTie;
};
class TIEQORINavigateObjectModifyVXMBomNavObject final : public QORINavigateObjectModifyTie<VXMBomNavObject> {
    using QORINavigateObjectModifyTie<VXMBomNavObject>::QORINavigateObjectModifyTie;
};

QORBaseUnknown* CreateTIEQORINavigateObjectVXMBomNavObject(QORBaseUnknown* iImplementation);
QORBaseUnknown* CreateTIEQORINavigateObjectPPRVXMBomNavObject(QORBaseUnknown* iImplementation);
QORBaseUnknown* CreateTIEQORINavigateObjectModifyVXMBomNavObject(QORBaseUnknown* iImplementation);
