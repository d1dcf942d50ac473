#include "QORPlatform/visualization/QORXSO.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/visualization/QORVisManager.h"

#include <algorithm>
#include <utility>

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
    return QORRegisterClass<QORXSO>("QORXSO", kQORPlatform, &QOREventSubscriber::ClassMeta);
}

QORMetaClass* QORXSO::GetMetaObject() const {
    return ClassMeta();
}

bool QORXSO::Append(QORBaseUnknown* iObject) {
    QORBaseUnknown* const object = iObject ? iObject->GetImpl(0) : nullptr;
    if (!object || !_places.emplace(object, _objects.size()).second) {
        return false;
    }
    _objects.emplace_back(object);
    return true;
}

QORStatus QORXSO::AddElement(const QORPathElement* iPath) {
    if (!Append(NamedBy(iPath).Get())) {
        return QOR_FAILED;
    }
    TellChange();
    return QOR_OK;
}

QORStatus QORXSO::RemoveElement(const QORPathElement* iPath) {
    const auto place = _places.find(NamedBy(iPath).Get());
    if (place == _places.end()) {
        return QOR_FAILED;
    }
    const QORBaseUnknown_var removed = std::move(_objects[place->second]);
    _places.erase(place);
    if (_objects.size() > 2 * _places.size()) {
        CloseGaps();
    }
    TellChange();
    return QOR_OK;
}

void QORXSO::AddElements(const std::vector<QORBaseUnknown*>& iObjects) {
    const int before = GetSize();
    for (QORBaseUnknown* object : iObjects) {
        Append(object);
    }
    if (GetSize() != before) {
        TellChange();
    }
}

void QORXSO::SetContent(const std::vector<QORBaseUnknown*>& iObjects) {
    CloseGaps();
    const std::vector<QORBaseUnknown_var> before = std::exchange(_objects, {});
    _places.clear();
    for (QORBaseUnknown* object : iObjects) {
        Append(object);
    }
    if (_objects != before) {
        TellChange();
    }
}

/// Moves the objects together, so that positions count them. Pays for the removals since the last time.
void QORXSO::CloseGaps() const {
    if (_objects.size() == _places.size()) {
        return;
    }
    _objects.erase(std::remove(_objects.begin(), _objects.end(), nullptr), _objects.end());
    for (std::size_t i = 0; i < _objects.size(); ++i) {
        _places[_objects[i].Get()] = i;
    }
}

void QORXSO::TellChange() {
    // Whoever is told may let the set go.
    const QORVar<QORXSO> self(this);
    QORVisManager::GetVisManager()->SetChanged(*this);
    Publish(CHANGED(), nullptr);
}

QORBaseUnknown_var QORXSO::GetElement(int iPosition) const {
    CloseGaps();
    return iPosition >= 1 && iPosition <= GetSize() ? _objects[iPosition - 1] : QORBaseUnknown_var();
}

bool QORXSO::Contains(QORBaseUnknown* iObject) const {
    return iObject && _places.count(iObject->GetImpl(0)) != 0;
}
