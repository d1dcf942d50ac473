#include "QORPlatform/framework/QORComponents.h"

#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/framework/QORVar.h"

QORStatus QORInstantiateComponent(const char* iName, const QORInterfaceID& iInterface, void** oInterface) {
    if (!oInterface) {
        return QOR_FAILED;
    }
    *oInterface = nullptr;
    const QORMetaClass* const meta = QORDictionary::Get().FindClass(iName ? iName : "");
    if (!meta) {
        return QOR_FAILED;
    }
    const QORBaseUnknown_var component = QORBaseUnknown_var::Adopt(meta->CreateItself());
    return component ? component->QueryInterface(iInterface, oInterface) : QOR_FAILED;
}
