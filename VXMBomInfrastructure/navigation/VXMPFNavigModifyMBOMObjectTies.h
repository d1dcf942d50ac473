#pragma once

#include "QORPlatform/navigation/QORINavigElement.h"
#include "QORPlatform/navigation/QORINavigModify.h"
#include "VXMBomInfrastructure/navigation/VXMPFNavigModifyMBOMObject.h"

// The forwarders of VXMPFNavigModifyMBOMObject, and the factories that the dictionary knows them by.

class TIEQORINavigModifyVXMPFNavigModifyMBOMObject final : public QORINavigModifyTie<VXMPFNavigModifyMBOMObject> {
    using QORINavigModifyTie<VXMPFNavigModifyMBOMObject>::QORINavigModifyTie;
};
class TIEQORINavigElementVXMPFNavigModifyMBOMObject final : public QORINavigElementTie<VXMPFNavigModifyMBOMObject> {
    using QORINavigElementTie<VXMPFNavigModifyMBOMObject>::QORINavigElementTie;
};

QORBaseUnknown* CreateTIEQORINavigModifyVXMPFNavigModifyMBOMObject(QORBaseUnknown* iImplementation);
QORBaseUnknown* CreateTIEQORINavigElementVXMPFNavigModifyMBOMObject(QORBaseUnknown* iImplementation);
