#pragma once

#include "QORPlatform/framework/QORBaseUnknown.h"

/// Forwarder of one interface to one implementation, without behaviour of its own: it counts on the implementation,
/// casts and identifies as it does, and lives no longer.
///
/// An implementation holds its forwarders by value and answers with QORAnswer, or the dictionary makes one at the first
/// cast. A template beside each interface derives from this one and passes on that interface's operations.
template <class Interface, class Impl>
class QORTie : public Interface {
public:
    explicit QORTie(Impl* iImplementation) { this->SetForwarded(iImplementation); }

    int AddRef() override { return Target()->AddRef(); }
    int Release() override { return Target()->Release(); }
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override {
        return Target()->QueryInterface(iInterface, oInterface);
    }
    QORBaseUnknown* GetImpl(int iLevel) override { return Target()->GetImpl(iLevel); }
    QORMetaClass* GetMetaObject() const override { return Target()->GetMetaObject(); }
    int IsAKindOf(const char* iClass) const override { return Target()->IsAKindOf(iClass); }

protected:
    Impl* Target() const { return static_cast<Impl*>(this->GetForwarded()); }
};

/// Answers a cast from the forwarders that an implementation holds by value: *oInterface gets the first one of the
/// wanted interface, with a reference, and the result is QOR_OK; without one the result is QOR_NO_INTERFACE and
/// *oInterface null.
template <class... Ties>
QORStatus QORAnswer(const QORInterfaceID& iInterface, void** oInterface, Ties&... iTies) {
    if (!oInterface) {
        return QOR_FAILED;
    }
    QORBaseUnknown* found = nullptr;
    ((kQORInterfaceID<Ties> == iInterface && (found = &iTies)) || ...);
    *oInterface = found;
    if (!found) {
        return QOR_NO_INTERFACE;
    }
    found->AddRef();
    return QOR_OK;
}
