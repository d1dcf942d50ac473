#include "VXMBomInfrastructure/navigation/VXMPFNavigModifyMBOMObjectTies.h"

QORBaseUnknown* CreateTIEQORINavigModifyVXMPFNavigModifyMBOMObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigModifyVXMPFNavigModifyMBOMObject(static_cast<VXMPFNavigModifyMBOMObject*>(iImplementation));
}

QORBaseUnknown* CreateTIEQORINavigElementVXMPFNavigModifyMBOMObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigElementVXMPFNavigModifyMBOMObject(static_cast<VXMPFNavigModifyMBOMObject*>(iImplementation));
}
