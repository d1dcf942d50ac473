#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"

#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/visualization/QORPathElement.h"
#include "VXMBomInfrastructure/generation/StrX.h"
#include "VXMBomInfrastructure/navigation/VXMBomNavObjectTies.h"
#include "VXMBomInfrastructure/process/VXMProcessBomGenerator.h"

#include <memory>

namespace {

constexpr const char* kClass = "VXMBomNavObject";

const QORFillDictionary navigateObject(kClass, IID_QORINavigateObject, CreateTIEQORINavigateObjectVXMBomNavObject);
const QORFillDictionary navigateObjectPPR(kClass, IID_QORINavigateObjectPPR,
                                          CreateTIEQORINavigateObjectPPRVXMBomNavObject);
const QORFillDictionary navigateObjectModify(kClass, IID_QORINavigateObjectModify,
                                             CreateTIEQORINavigateObjectModifyVXMBomNavObject);

} // namespace

VXMBomNavObject::VXMBomNavObject(const QORISPPActivity_var& iActivity) {
    VXMProcessBomGenerator generator(iActivity);
    const DOM_Document document = generator.GetBom(0);
    _element = document.getDocumentElement();
}

VXMBomNavObject::VXMBomNavObject(DOM_Element& iElement) : _element(iElement) {}

VXMBomNavObject::~VXMBomNavObject() = default;

QORMetaClass* VXMBomNavObject::ClassMeta() {
    return QORRegisterClass<VXMBomNavObject>(kClass, "VXMBomInfrastructure");
}

QORMetaClass* VXMBomNavObject::GetMetaObject() const {
    return ClassMeta();
}

QORListValQORUnicodeString* VXMBomNavObject::GetIdentificators() {
    static const DOMString documentTag("BOM");
    static const DOMString displayName("DisplayName");
    auto labels = std::make_unique<QORListValQORUnicodeString>();
    if (_element.getNodeName().equals(documentTag)) {
        labels->Append("Bom");
    } else {
        const StrX name(_element.getAttribute(displayName));
        labels->Append(QORUnicodeString(name.localForm()));
    }
    return labels.release();
}

QORListValQORBaseUnknown_var* VXMBomNavObject::GetChildren() {
    auto objects = std::make_unique<QORListValQORBaseUnknown_var>();
    const DOM_NodeList nodes = _element.getChildNodes();
    const int length = nodes.getLength();
    for (int index = 0; index < length; ++index) {
        const DOM_Node node = nodes.item(index);
        if (node.getNodeType() == DOM_Node::ELEMENT_NODE) {
            DOM_Element element(node);
            objects->Append(QORBaseUnknown_var::Adopt(new VXMBomNavObject(element)));
        }
    }
    return objects.release();
}

QORPathElement* VXMBomNavObject::DecodeSentCommand(unsigned char& oFlag) {
    auto* const path = new QORPathElement(nullptr);
    path->AddChildElement(GetImpl(0), 0);
    oFlag = 0;
    return path;
}
