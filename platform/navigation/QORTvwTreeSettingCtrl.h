#pragma once

#include "QORPlatform/navigation/QORITvwTreeSettingAtt.h"

/// The platform's component of the tree settings, "QORTvwTreeSettingCtrl". All its objects share the values, which last
/// as long as the process.
class QOR_EXPORT QORTvwTreeSettingCtrl : public QORBaseUnknown {
public:
    QORTvwTreeSettingCtrl();
    ~QORTvwTreeSettingCtrl() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;

    QORStatus SetTreeFlag(unsigned char iFlag);
    QORStatus GetTreeFlag(unsigned char& oFlag);

private:
    QORITvwTreeSettingAttTie<QORTvwTreeSettingCtrl> _settings{this};
};

/// The component of the tree settings through the interface iInterface: QOR_OK with a counted pointer in *oController,
/// or a negative status with null when the component can't be had or doesn't answer.
QOR_EXPORT QORStatus GetQORTvwTreeSettingCtrl(const QORInterfaceID& iInterface, void** oController);

/// Class of the component that is handed out from now on, for a host that keeps settings in its own way; null for the
/// platform's. Made by name at each request.
QOR_EXPORT void QORUseTvwTreeSettingCtrl(const char* iClass);
