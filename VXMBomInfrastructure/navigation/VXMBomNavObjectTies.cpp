#include "VXMBomInfrastructure/navigation/VXMBomNavObjectTies.h"

QORBaseUnknown* CreateTIEQORINavigateObjectVXMBomNavObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigateObjectVXMBomNavObject(static_cast<VXMBomNavObject*>(iImplementation));
}

QORBaseUnknown* CreateTIEQORINavigateObjectPPRVXMBomNavObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigateObjectPPRVXMBomNavObject(static_cast<VXMBomNavObject*>(iImplementation));
}

QORBaseUnknown* CreateTIEQORINavigateObjectModifyVXMBomNavObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigateObjectModifyVXMBomNavObject(static_cast<VXMBomNavObject*>(iImplementation));
}
