#include "QORPlatform/framework/QORMetaClass.h"

#include "QORPlatform/framework/QORDictionary.h"

#include <cstring>

QORMetaClass::QORMetaClass(const char* iName, ENUMTypeOfClass iKind, QORMetaClass* iBase, const char* iExtended,
                           const char* iModule, Creator iCreate)
    : _name(iName ? iName : ""), _kind(iKind), _base(iBase), _module(iModule ? iModule : ""), _create(iCreate) {
    if (iKind == ENUMTypeOfClass::Placeholder) {
        return;
    }
    QORDictionary::Get().Register(*this);
    if (iExtended && std::strcmp(iExtended, "QORNull") != 0) {
        SetExtensionOf(fct_FindMetaObject(iExtended));
    }
}

QORMetaClass::~QORMetaClass() {
    if (_kind != ENUMTypeOfClass::Placeholder) {
        QORDictionary::Get().Unregister(*this);
    }
}

void QORMetaClass::SetExtensionOf(QORMetaClass* iType) {
    if (iType) {
        _extended.emplace_back(iType->GetName());
        QORDictionary::Get().AddExtension(iType->GetName(), *this);
    }
}

bool QORMetaClass::IsAKindOf(const char* iClass) const {
    for (const QORMetaClass* meta = iClass ? this : nullptr; meta; meta = meta->_base) {
        if (meta->_name == iClass) {
            return true;
        }
    }
    return false;
}

QORMetaClass* QORMetaClass::OfBaseUnknown() {
    // Never destroyed: any object may still be asked for its class while the process ends.
    static auto* const meta =
        new QORMetaClass("QORBaseUnknown", ENUMTypeOfClass::Implementation, nullptr, "QORNull", "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* fct_FindMetaObject(const char* iName) {
    return iName ? QORDictionary::Get().FindOrPlace(iName) : nullptr;
}

QORClassEntry::QORClassEntry(const char* iName, const QORModule& iModule, QORMetaClass* iBase,
                             QORMetaClass::Creator iCreate, std::initializer_list<const char*> iExtended)
    : _meta(new QORMetaClass(iName,
                             iExtended.size() == 0 ? ENUMTypeOfClass::Implementation : ENUMTypeOfClass::Extension,
                             iBase, "QORNull", iModule.name, iCreate)),
      _stays(iModule.stays) {
    for (const char* type : iExtended) {
        _meta->SetExtensionOf(fct_FindMetaObject(type));
    }
}

QORClassEntry::~QORClassEntry() {
    if (!_stays) {
        delete _meta;
    }
}
