#include "QORPlatform/visualization/QORXSO.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/visualization/QORVisManager.h"

#include <algorithm>

namespace {

QORBaseUnknown_var NamedBy(const QORPathElement* iPath) {
    return iPath ? QORBaseUnknown_var(iPath->GetElement(iPath->GetSize()).Impl()) : QORBaseUnknown_var();
}

} // namespace

QORXSO::QORXSO() = default;

QORXSO::~QORXSO() {
    QORVisManager::GetVisManager()->ForgetSet(*this);
}

QORMetaClass* QORXSO::ClassMeta() {
    return QORRegisterClass<QORXSO>("QORXSO", kQORPlatform);
}

QORMetaClass* QORXSO::GetMetaObject() const {
    return ClassMeta();
}

QORStatus QORXSO::AddElement(const QORPathElement* iPath) {
    QORBaseUnknown_var object = NamedBy(iPath);
    if (!object || Contains(object.Get())) {
        return QOR_FAILED;
    }
    _objects.push_back(std::move(object));
    QORVisManager::GetVisManager()->SetChanged(*this);
    return QOR_OK;
}

QORStatus QORXSO::RemoveElement(const QORPathElement* iPath) {
    if (std::erase(_objects, NamedBy(iPath)) == 0) {
        return QOR_FAILED;
    }
    QORVisManager::GetVisManager()->SetChanged(*this);
    return QOR_OK;
}

void QORXSO::Empty() {
    if (!_objects.empty()) {
        _objects.clear();
        QORVisManager::GetVisManager()->SetChanged(*this);
    }
}

QORBaseUnknown_var QORXSO::GetElement(int iPosition) const {
    return iPosition >= 1 && iPosition <= GetSize() ? _objects[iPosition - 1] : QORBaseUnknown_var();
}

bool QORXSO::Contains(QORBaseUnknown* iObject) const {
    return iObject && std::find(_objects.begin(), _objects.end(), QORBaseUnknown_var(iObject)) != _objects.end();
}
