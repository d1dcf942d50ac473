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

/// Registers the class, and the second type that it extends.
class Registration {
public:
    Registration()
        : _meta(kClass, Extension, QORMetaClass::OfBaseUnknown(), kNodeOfPPRObject, "VXMBomInfrastructure",
                CreateItself) {
        _meta.SetExtensionOf(fct_FindMetaObject(kNodeOfBomObject));
    }
    QORMetaClass* Meta() { return &_meta; }

private:
    QORMetaClass _meta;
};

const QORMetaClass* const registered = VXMPFNavigModifyMBOMObject::ClassMeta();
const QORFillDictionary navigModify(kClass, IID_QORINavigModify, CreateTIEQORINavigModifyVXMPFNavigModifyMBOMObject);
const QORFillDictionary navigElement(kClass, IID_QORINavigElement, CreateTIEQORINavigElementVXMPFNavigModifyMBOMObject);

} // namespace

VXMPFNavigModifyMBOMObject::VXMPFNavigModifyMBOMObject() = default;

VXMPFNavigModifyMBOMObject::~VXMPFNavigModifyMBOMObject() = default;

QORMetaClass* VXMPFNavigModifyMBOMObject::ClassMeta() {
    static Registration registration;
    return registration.Meta();
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
