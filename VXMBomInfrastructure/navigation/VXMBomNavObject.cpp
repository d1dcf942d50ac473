#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"

#include "QORPlatform/dom/DOM_Document.h"
#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/navigation/QORINavigateObject.h"
#include "QORPlatform/navigation/QORINavigateObjectModify.h"
#include "QORPlatform/navigation/QORINavigateObjectPPR.h"
#include "QORPlatform/visualization/QORPathElement.h"
#include "VXMBomInfrastructure/generation/StrX.h"
#include "VXMBomInfrastructure/process/VXMProcessBomGenerator.h"

#include <memory>

namespace {

constexpr const char* kClass = "VXMBomNavObject";

// The forwarders, and the factories that the dictionary knows them by.

class TIEQORINavigateObjectVXMBomNavObject final : public QORINavigateObjectTie<VXMBomNavObject> {
    using QORINavigateObjectTie<VXMBomNavObject>::QORINavigateObjectTie;
};
class TIEQORINavigateObjectPPRVXMBomNavObject final : public QORINavigateObjectPPRTie<VXMBomNavObject> {
    using QORINavigateObjectPPRTie<VXMBomNavObject>::QORINavigateObjectPPRTie;
};
class TIEQORINavigateObjectModifyVXMBomNavObject final : public QORINavigateObjectModifyTie<VXMBomNavObject> {
    using QORINavigateObjectModifyTie<VXMBomNavObject>::QORINavigateObjectModifyTie;
};

QORBaseUnknown* CreateTIEQORINavigateObjectVXMBomNavObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigateObjectVXMBomNavObject(static_cast<VXMBomNavObject*>(iImplementation));
}

QORBaseUnknown* CreateTIEQORINavigateObjectPPRVXMBomNavObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigateObjectPPRVXMBomNavObject(static_cast<VXMBomNavObject*>(iImplementation));
}

QORBaseUnknown* CreateTIEQORINavigateObjectModifyVXMBomNavObject(QORBaseUnknown* iImplementation) {
    return new TIEQORINavigateObjectModifyVXMBomNavObject(static_cast<VXMBomNavObject*>(iImplementation));
}

const QORFillDictionary navigateObject(kClass, IID_QORINavigateObject, CreateTIEQORINavigateObjectVXMBomNavObject);
const QORFillDictionary navigateObjectPPR(kClass, IID_QORINavigateObjectPPR,
                                          CreateTIEQORINavigateObjectPPRVXMBomNavObject);
const QORFillDictionary navigateObjectModify(kClass, IID_QORINavigateObjectModify,
                                             CreateTIEQORINavigateObjectModifyVXMBomNavObject);

} // namespace

struct VXMBomNavObjectState {
    DOM_Element element;
};

VXMBomNavObject::VXMBomNavObject(const QORISPPActivity_var& iActivity) {
    VXMProcessBomGenerator generator(iActivity);
    const DOM_Document document = generator.GetBom(0);
    _state = std::make_unique<VXMBomNavObjectState>(VXMBomNavObjectState{document.getDocumentElement()});
}

VXMBomNavObject::VXMBomNavObject(DOM_Element& iElement)
    : _state(std::make_unique<VXMBomNavObjectState>(VXMBomNavObjectState{iElement})) {}

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
    const DOM_Element& element = _state->element;
    if (element.getNodeName().equals(documentTag)) {
        labels->Append("Bom");
    } else {
        const StrX name(element.getAttribute(displayName));
        labels->Append(QORUnicodeString(name.localForm()));
    }
    return labels.release();
}

QORListValQORBaseUnknown_var* VXMBomNavObject::GetChildren() {
    auto objects = std::make_unique<QORListValQORBaseUnknown_var>();
    const DOM_NodeList nodes = _state->element.getChildNodes();
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
