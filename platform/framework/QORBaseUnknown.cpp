#include "QORPlatform/framework/QORBaseUnknown.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/framework/QORObjectParts.h"

namespace {

constexpr int kForwarder = -1;
constexpr int kFirstHandedOut = 1 << 30;

QORObjectCount& ObjectCount() {
    static QORObjectCount count("QORBaseUnknown");
    return count;
}

} // namespace

QORBaseUnknown::QORBaseUnknown() {
    ObjectCount().Enter();
}

QORBaseUnknown::~QORBaseUnknown() {
    if (_references != kForwarder) {
        delete _link.parts;
    }
    ObjectCount().Leave();
}

int QORBaseUnknown::AddRef() {
    return ++_references;
}

int QORBaseUnknown::Release() {
    const int left = --_references;
    if (left == 0) {
        delete this;
    }
    return left;
}

QORStatus QORBaseUnknown::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    if (!oInterface) {
        return QOR_FAILED;
    }
    *oInterface = nullptr;
    return FindPart(iInterface, oInterface);
}

QORStatus QORBaseUnknown::FindPart(const QORInterfaceID& iInterface, void** oInterface) {
    if (!_link.parts) {
        if (!QORObjectParts::CanHold(*GetMetaObject())) {
            return QOR_NO_INTERFACE;
        }
        _link.parts = new QORObjectParts(*this);
    }
    QORBaseUnknown* forwarder = _link.parts->FindForwarder(iInterface);
    if (!forwarder) {
        return QOR_NO_INTERFACE;
    }
    forwarder->AddRef();
    *oInterface = forwarder;
    return QOR_OK;
}

QORBaseUnknown* QORBaseUnknown::GetImpl(int) {
    return this;
}

QORMetaClass* QORBaseUnknown::GetMetaObject() const {
    return QORMetaClass::OfBaseUnknown();
}

const char* QORBaseUnknown::IsA() const {
    return GetMetaObject()->GetName();
}

int QORBaseUnknown::IsAKindOf(const char* iClass) const {
    return GetMetaObject()->IsAKindOf(iClass) ? 1 : 0;
}

int QORBaseUnknown::GetIdentity() {
    static int next = kFirstHandedOut;
    if (_identity == 0) {
        _identity = next++;
    }
    return _identity;
}

void QORBaseUnknown::SetForwarded(QORBaseUnknown* iImplementation) {
    _references = kForwarder;
    _link.forwarded = iImplementation;
}
