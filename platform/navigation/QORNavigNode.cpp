#include "QORPlatform/navigation/QORNavigNode.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/navigation/QORNavigInstance.h"

#include <string>

QORNavigNode::QORNavigNode(const QORBaseUnknown_var& iTreeObject) : _treeObject(iTreeObject.Impl()) {}

QORNavigNode::~QORNavigNode() = default;

QORMetaClass* QORNavigNode::GetMetaObject() const {
    // Looked up each time: the type may leave the dictionary with the library that extends it.
    return fct_FindMetaObject((std::string(_treeObject->IsA()) + "_node").c_str());
}

QORStatus QORNavigNode::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    const QORStatus own = QORAnswer(iInterface, oInterface, _graphNode);
    return own < 0 ? QORBaseUnknown::QueryInterface(iInterface, oInterface) : own;
}

void QORNavigNode::SetLabel(const QORUnicodeString& iLabel) {
    if (!(_label == iLabel)) {
        _label = iLabel;
        Changed();
    }
}

void QORNavigNode::SetIconName(const QORUnicodeString& iName) {
    if (!(_iconName == iName)) {
        _iconName = iName;
        Changed();
    }
}

void QORNavigNode::SetNodeOption(int iOption) {
    if (_option != iOption) {
        _option = iOption;
        Changed();
    }
}

void QORNavigNode::Changed() {
    if (_instance) {
        _instance->NodeChanged();
    }
}
