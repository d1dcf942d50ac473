#include "QORPlatform/navigation/QORTvwTreeSettingCtrl.h"

#include "QORPlatform/framework/QORComponents.h"
#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/settings/QORSettingStore.h"

#include <string>

namespace {

constexpr const char* kOwnComponent = "QORTvwTreeSettingCtrl";
constexpr const char* kTreeFlag = "TreeFlag";

std::string& Component() {
    static auto* const component = new std::string(kOwnComponent);
    return *component;
}

} // namespace

QORTvwTreeSettingCtrl::QORTvwTreeSettingCtrl() = default;

QORTvwTreeSettingCtrl::~QORTvwTreeSettingCtrl() = default;

QORMetaClass* QORTvwTreeSettingCtrl::ClassMeta() {
    return QORRegisterClass<QORTvwTreeSettingCtrl>(kOwnComponent, kQORPlatform, &QORMetaClass::OfBaseUnknown,
                                                   []() -> QORBaseUnknown* { return new QORTvwTreeSettingCtrl(); });
}

QORMetaClass* QORTvwTreeSettingCtrl::GetMetaObject() const {
    return ClassMeta();
}

QORStatus QORTvwTreeSettingCtrl::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    const QORStatus own = QORAnswer(iInterface, oInterface, _settings);
    return own < 0 ? QORBaseUnknown::QueryInterface(iInterface, oInterface) : own;
}

QORStatus QORTvwTreeSettingCtrl::SetTreeFlag(unsigned char iFlag) {
    QORSettingStore::Of(kOwnComponent).Set(kTreeFlag, iFlag);
    return QOR_OK;
}

QORStatus QORTvwTreeSettingCtrl::GetTreeFlag(unsigned char& oFlag) {
    int value = kQORTreePlain;
    QORSettingStore::Of(kOwnComponent).Get(kTreeFlag, value);
    oFlag = static_cast<unsigned char>(value);
    return QOR_OK;
}

QORStatus GetQORTvwTreeSettingCtrl(const QORInterfaceID& iInterface, void** oController) {
    return QORInstantiateComponent(Component().c_str(), iInterface, oController);
}

void QORUseTvwTreeSettingCtrl(const char* iClass) {
    Component() = iClass ? iClass : kOwnComponent;
}
