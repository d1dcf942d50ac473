#include "QORPlatform/visualization/QORPathElement.h"

#include "QORPlatform/framework/QORMetaClass.h"

QORPathElement::QORPathElement(QORBaseUnknown* iObject) {
    AddChildElement(iObject, 0);
}

QORPathElement::~QORPathElement() = default;

QORMetaClass* QORPathElement::ClassMeta() {
    return QORRegisterClass<QORPathElement>("QORPathElement", kQORPlatform);
}

QORMetaClass* QORPathElement::GetMetaObject() const {
    return ClassMeta();
}

void QORPathElement::AddChildElement(QORBaseUnknown* iObject, int iPosition) {
    if (iObject) {
        const bool inside = iPosition >= 1 && iPosition <= GetSize();
        _objects.insert(inside ? _objects.begin() + (iPosition - 1) : _objects.end(), QORBaseUnknown_var(iObject));
    }
}

QORBaseUnknown_var QORPathElement::GetElement(int iPosition) const {
    return iPosition >= 1 && iPosition <= GetSize() ? _objects[iPosition - 1] : QORBaseUnknown_var();
}

std::vector<QORBaseUnknown*> QORPathElement::GetImplementations() const {
    std::vector<QORBaseUnknown*> implementations;
    implementations.reserve(_objects.size());
    for (const QORBaseUnknown_var& object : _objects) {
        implementations.push_back(object.Impl());
    }
    return implementations;
}
