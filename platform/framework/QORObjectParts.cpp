#include "QORPlatform/framework/QORObjectParts.h"

#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/framework/QORExtensionAdapter.h"

QORObjectParts::QORObjectParts(QORBaseUnknown& iObject) : _object(iObject) {}

QORObjectParts::~QORObjectParts() = default;

bool QORObjectParts::CanHold(const QORMetaClass& iClass) {
    // Failing casts come in rows, of objects of one class: the answer holds until the dictionary changes.
    static struct {
        const QORMetaClass* type = nullptr;
        unsigned long change = 0;
        bool canHold = false;
    } latest;
    const QORDictionary& dictionary = QORDictionary::Get();
    if (latest.type != &iClass || latest.change != dictionary.GetChange()) {
        bool canHold = false;
        for (const QORMetaClass* meta = &iClass; meta && !canHold; meta = meta->GetBase()) {
            canHold = dictionary.KnowsBindingsOf(meta->GetName());
        }
        latest = {&iClass, dictionary.GetChange(), canHold};
    }
    return latest.canHold;
}

QORBaseUnknown* QORObjectParts::FindForwarder(const QORInterfaceID& iInterface) {
    for (const Forwarder& forwarder : _forwarders) {
        if (forwarder.interface == iInterface) {
            return forwarder.object.get();
        }
    }
    for (const QORMetaClass* meta = _object.GetMetaObject(); meta;) {
        // Read first: a placeholder goes when what is made here registers the class.
        const QORMetaClass* const base = meta->GetBase();
        if (QORBaseUnknown* made = Make(*meta, _object, iInterface)) {
            return made;
        }
        if (QORBaseUnknown* made = MakeOnExtension(*meta, iInterface)) {
            return made;
        }
        meta = base;
    }
    return nullptr;
}

QORBaseUnknown* QORObjectParts::Make(const QORMetaClass& iClass, QORBaseUnknown& iTarget,
                                     const QORInterfaceID& iInterface) {
    const QORForwarderFactory factory = QORDictionary::Get().FindFactory(iClass.GetName(), iInterface);
    if (!factory) {
        return nullptr;
    }
    std::unique_ptr<QORBaseUnknown> made(factory(&iTarget));
    _forwarders.push_back({iInterface, std::move(made)});
    return _forwarders.back().object.get();
}

QORBaseUnknown* QORObjectParts::MakeOnExtension(const QORMetaClass& iClass, const QORInterfaceID& iInterface) {
    for (const QORMetaClass* type : QORDictionary::Get().FindExtensions(iClass.GetName())) {
        if (!QORDictionary::Get().FindFactory(type->GetName(), iInterface)) {
            continue;
        }
        if (QORExtensionAdapter* extension = FindExtension(*type)) {
            return Make(*type, *extension, iInterface);
        }
    }
    return nullptr;
}

QORExtensionAdapter* QORObjectParts::FindExtension(const QORMetaClass& iType) {
    for (const ExtensionPart& part : _extensions) {
        if (part.type == &iType) {
            return part.object.get();
        }
    }
    QORBaseUnknown* const made = iType.CreateItself();
    auto* const extension = dynamic_cast<QORExtensionAdapter*>(made);
    if (!extension) {
        if (made) {
            made->Release();
        }
        return nullptr;
    }
    extension->Extend(&_object);
    _extensions.push_back({&iType, std::unique_ptr<QORExtensionAdapter>(extension)});
    return _extensions.back().object.get();
}
