#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// The fastener settings of the BOM, behind the component "VXMMVWMBOMViewerSettingCtrl". Each operation fills oValue,
/// where 1 alone means on, or leaves it alone; the results aren't looked at. A generator makes the component by that
/// name when it is constructed and asks for each setting once; without the component all are on. What holds for every
/// operation of a model stands in VXMModel.h.
class VXMIMVWMBOMViewerSettingAtt : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("VXMIMVWMBOMViewerSettingAtt"); }

    /// Fastener types that are shown.
    virtual QORStatus GetShowAdhesiveCurve(int& oValue) = 0;
    virtual QORStatus GetShowAdhesivePoint(int& oValue) = 0;
    virtual QORStatus GetShowArcWeld(int& oValue) = 0;
    virtual QORStatus GetShowClinch(int& oValue) = 0;
    virtual QORStatus GetShowGlueBead(int& oValue) = 0;
    virtual QORStatus GetShowGlueDrop(int& oValue) = 0;
    virtual QORStatus GetShowRivet(int& oValue) = 0;
    virtual QORStatus GetShowSealantCurve(int& oValue) = 0;
    virtual QORStatus GetShowSealantPoint(int& oValue) = 0;
    virtual QORStatus GetShowScrew(int& oValue) = 0;
    virtual QORStatus GetShowSpotWeld(int& oValue) = 0;
    virtual QORStatus GetShowStud(int& oValue) = 0;

    /// Whether fasteners that aren't assigned stay out.
    virtual QORStatus GetShowAssignedFastenersOnly(int& oValue) = 0;
};

inline constexpr QORInterfaceID IID_VXMIMVWMBOMViewerSettingAtt = VXMIMVWMBOMViewerSettingAtt::InterfaceID();
using VXMIMVWMBOMViewerSettingAtt_var = QORVar<VXMIMVWMBOMViewerSettingAtt>;

template <class Impl>
class VXMIMVWMBOMViewerSettingAttTie : public QORTie<VXMIMVWMBOMViewerSettingAtt, Impl> {
public:
    using QORTie<VXMIMVWMBOMViewerSettingAtt, Impl>::QORTie;

    QORStatus GetShowAdhesiveCurve(int& oValue) override { return this->Target()->GetShowAdhesiveCurve(oValue); }
    QORStatus GetShowAdhesivePoint(int& oValue) override { return this->Target()->GetShowAdhesivePoint(oValue); }
    QORStatus GetShowArcWeld(int& oValue) override { return this->Target()->GetShowArcWeld(oValue); }
    QORStatus GetShowClinch(int& oValue) override { return this->Target()->GetShowClinch(oValue); }
    QORStatus GetShowGlueBead(int& oValue) override { return this->Target()->GetShowGlueBead(oValue); }
    QORStatus GetShowGlueDrop(int& oValue) override { return this->Target()->GetShowGlueDrop(oValue); }
    QORStatus GetShowRivet(int& oValue) override { return this->Target()->GetShowRivet(oValue); }
    QORStatus GetShowSealantCurve(int& oValue) override { return this->Target()->GetShowSealantCurve(oValue); }
    QORStatus GetShowSealantPoint(int& oValue) override { return this->Target()->GetShowSealantPoint(oValue); }
    QORStatus GetShowScrew(int& oValue) override { return this->Target()->GetShowScrew(oValue); }
    QORStatus GetShowSpotWeld(int& oValue) override { return this->Target()->GetShowSpotWeld(oValue); }
    QORStatus GetShowStud(int& oValue) override { return this->Target()->GetShowStud(oValue); }
    QORStatus GetShowAssignedFastenersOnly(int& oValue) override {
        return this->Target()->GetShowAssignedFastenersOnly(oValue);
    }
};
