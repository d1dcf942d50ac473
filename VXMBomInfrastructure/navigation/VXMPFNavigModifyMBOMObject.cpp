#include "VXMBomInfrastructure/navigation/VXMPFNavigModifyMBOMObject.h"

#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/navigation/QORIGraphNode.h"
#include "VXMBomInfrastructure/navigation/VXMPFNavigModifyMBOMObjectTies.h"

namespace {

constexpr const char* kClass = "VXMPFNavigModifyMBOMObject";
constexpr const char* kNodeOfPPRObject = "VXMPFNavObjectPPR_node";
constexpr const char* kNodeOfBomObject = "VXMBomNavObject_node";

QORBaseUnknown* CreateItself() {
    return new VXMPFNavigModifyMBOMObject();
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
