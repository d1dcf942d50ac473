#pragma once

#include "QORPlatform/framework/QORInterfaceID.h"

#include <memory>
#include <vector>

class QORBaseUnknown;
class QORExtensionAdapter;
class QORMetaClass;

/// What the dictionary made for one object: forwarders, and extensions with theirs. They end with the object.
class QORObjectParts {
public:
    explicit QORObjectParts(QORBaseUnknown& iObject);
    ~QORObjectParts();
    QORObjectParts(const QORObjectParts&) = delete;
    QORObjectParts& operator=(const QORObjectParts&) = delete;

    /// Whether the dictionary could make anything for an object of that class.
    static bool CanHold(const QORMetaClass& iClass);

    /// The forwarder of that interface, made at the first call; null when neither the object's class, nor a base, nor
    /// an extension answers it.
    QORBaseUnknown* FindForwarder(const QORInterfaceID& iInterface);

private:
    struct Forwarder {
        QORInterfaceID interface;
        std::unique_ptr<QORBaseUnknown> object;
    };
    struct ExtensionPart {
        const QORMetaClass* type;
        std::unique_ptr<QORExtensionAdapter> object;
    };

    QORBaseUnknown* Make(const QORMetaClass& iClass, QORBaseUnknown& iTarget, const QORInterfaceID& iInterface);
    QORBaseUnknown* MakeOnExtension(const QORMetaClass& iClass, const QORInterfaceID& iInterface);
    QORExtensionAdapter* FindExtension(const QORMetaClass& iType);

    QORBaseUnknown& _object;
    std::vector<ExtensionPart> _extensions; // ended after the forwarders that point to them
    std::vector<Forwarder> _forwarders;
};
