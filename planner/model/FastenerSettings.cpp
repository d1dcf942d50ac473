#include "planner/model/FastenerSettings.h"

#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

namespace planner {

namespace {

constexpr const char* kComponent = "VXMMVWMBOMViewerSettingCtrl";

class SettingControl final : public QORBaseUnknown {
public:
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override {
        const QORStatus status = QORAnswer(iInterface, oInterface, settings_);
        return status < 0 ? QORBaseUnknown::QueryInterface(iInterface, oInterface) : status;
    }

    // Answers of VXMIMVWMBOMViewerSettingAtt.
    QORStatus GetShowAdhesiveCurve(int& oValue) const { return read(0, oValue); }
    QORStatus GetShowAdhesivePoint(int& oValue) const { return read(1, oValue); }
    QORStatus GetShowArcWeld(int& oValue) const { return read(2, oValue); }
    QORStatus GetShowClinch(int& oValue) const { return read(3, oValue); }
    QORStatus GetShowGlueBead(int& oValue) const { return read(4, oValue); }
    QORStatus GetShowGlueDrop(int& oValue) const { return read(5, oValue); }
    QORStatus GetShowRivet(int& oValue) const { return read(6, oValue); }
    QORStatus GetShowSealantCurve(int& oValue) const { return read(7, oValue); }
    QORStatus GetShowSealantPoint(int& oValue) const { return read(8, oValue); }
    QORStatus GetShowScrew(int& oValue) const { return read(9, oValue); }
    QORStatus GetShowSpotWeld(int& oValue) const { return read(10, oValue); }
    QORStatus GetShowStud(int& oValue) const { return read(11, oValue); }
    QORStatus GetShowAssignedFastenersOnly(int& oValue) const {
        return FastenerSettings::store().Get(VXMAssignedFastenersOnlySetting, oValue);
    }

private:
    static QORStatus read(std::size_t type, int& oValue) {
        return FastenerSettings::store().Get(VXMFastenerTypes[type].setting, oValue);
    }

    VXMIMVWMBOMViewerSettingAttTie<SettingControl> settings_{this};
};

QORBaseUnknown* createControl() {
    return new SettingControl();
}

} // namespace

FastenerSettings::FastenerSettings() {
    static std::weak_ptr<QORMetaClass> registered;
    class_ = registered.lock();
    if (!class_) {
        class_ = std::make_shared<QORMetaClass>(kComponent, ENUMTypeOfClass::Implementation,
                                                QORMetaClass::OfBaseUnknown(), "QORNull", "planner", createControl);
        registered = class_;
    }
}

QORSettingStore& FastenerSettings::store() {
    return QORSettingStore::Of(kComponent);
}

} // namespace planner
