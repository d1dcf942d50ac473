#include "QORPlatform/settings/QORSettingStore.h"

#include <memory>

QORSettingStore& QORSettingStore::Of(const QORUnicodeString& iComponent) {
    static auto* const stores = new std::unordered_map<QORUnicodeString, std::unique_ptr<QORSettingStore>>();
    auto& store = (*stores)[iComponent];
    if (!store) {
        store = std::make_unique<QORSettingStore>();
    }
    return *store;
}

QORStatus QORSettingStore::Get(const QORUnicodeString& iName, int& oValue) const {
    const auto place = _values.find(iName);
    if (place == _values.end()) {
        return QOR_FAILED;
    }
    oValue = place->second;
    return QOR_OK;
}

void QORSettingStore::Set(const QORUnicodeString& iName, int iValue) {
    _values[iName] = iValue;
}
