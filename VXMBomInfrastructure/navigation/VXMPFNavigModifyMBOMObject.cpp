#include "VXMBomInfrastructure/navigation/VXMPFNavigModifyMBOMObject.h"

#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/navigation/QORIGraphNode.h"
#include "QORPlatform/navigation/QORINavigElement.h"
#include "QORPlatform/navigation/QORINavigModify.h"

namespace {

constexpr const char* kClass = "VXMPFNavigModifyMBOMObject";
constexpr const char* kNodeOfPPRObject = "VXMPFNavObjectPPR_node";
constexpr const char* kNodeOfBomObject = "VXMBomNavObject_node";

QORBaseUnknown* CreateItself() {
    return new VXMPFNavigModifyMBOMObject();
}

// The forwarders, and the factories that the dictionary knows them by.

class TIEQORINavigModifyVXMPFNavigModifyMBOMObject final : public QORINavigModifyTie<VXMPFNavigModifyMBOMObject> {
    using QORINavigModifyTie<VXMPFNavigModifyMBOMObject>::QORINavigModifyTie;
};
class TIEQORINavigElementVXMPFNavigModifyMBOMObject final : public QORINavigElementTie<VXMPFNavigModifyMBOMObject> {
    using QORINavigElementTie<VXMPFNavigModifyMBOMObject>::QORINavigElementTie;
};

QORBaseUnknown* CreateTIEQORINavigModifyVXMPFNavigModifyMBOMObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigModifyVXMPFNavigModifyMBOMObject(static_cast<VXMPFNavigModifyMBOMObject*>(iImplementation));
}

QORBaseUnknown* CreateTIEQORINavigElementVXMPFNavigModifyMBOMObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigElementVXMPFNavigModifyMBOMObject(static_cast<VXMPFNavigModifyMBOMObject*>(iImplementation));
}

const QORFillDictionary navigModify(kClass, IID_QORINavigModify, CreateTIEQORINavigModifyVXMPFNavigModifyMBOMObject);
const QORFillDictionary navigElement(kClass, IID_QORINavigElement, CreateTIEQORINavigElementVXMPFNavigModifyMBOMObject);

} // namespace

VXMPFNavigModifyMBOMObject::VXMPFNavigModifyMBOMObject() = default;

VXMPFNavigModifyMBOMObject::~VXMPFNavigModifyMBOMObject() = default;

QORMetaClass* VXMPFNavigModifyMBOMObject::ClassMeta() {
    return QORRegisterClass<VXMPFNavigModifyMBOMObject>(kClass, "VXMBomInfrastructure", &QORMetaClass::OfBaseUnknown,
                                                        CreateItself, {kNodeOfPPRObject, kNodeOfBomObject});
}

QORMetaClass* VXMPFNavigModifyMBOMObject::GetMetaObject() const {
    return ClassMeta();
}

void VXMPFNavigModifyMBOMObject::ProcessAfterAction() {}

void VXMPFNavigModifyMBOMObject::UpdateElem(QORNavigInstance*) {
    QORBaseUnknown* const node = GetImpl(0);
    const QORIGraphNode_var graphNode(node);
    graphNode->SetNodeOption(kQORNodePlain);
    if (node->IsAKindOf(kNodeOfBomObject) != 0) {
        graphNode->SetIconName("I_PPRProduct");
    }
}
