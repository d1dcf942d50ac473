#pragma once

#include "VXMBomInfrastructure/model/VXMIMVWMBOMViewerSettingAtt.h"

#include <array>

/// A fastener type that a bill can show.
struct VXMFastenerType {
    const char* name;                                               ///< process type of its fasteners, spelt exactly so
    const char* setting;                                            ///< name of the setting that shows it
    QORStatus (VXMIMVWMBOMViewerSettingAtt::*GetShow)(int& oValue); ///< reads that setting
};

/// The types that a bill can show; entry n, from 0, belongs to the bit 2^n of a show mode.
inline constexpr std::array<VXMFastenerType, 12> VXMFastenerTypes{
    {{"Adhesive Curve", "ShowAdhesiveCurve", &VXMIMVWMBOMViewerSettingAtt::GetShowAdhesiveCurve},
     {"Adhesive Point", "ShowAdhesivePoint", &VXMIMVWMBOMViewerSettingAtt::GetShowAdhesivePoint},
     {"Arc Weld", "ShowArcWeld", &VXMIMVWMBOMViewerSettingAtt::GetShowArcWeld},
     {"Clinch", "ShowClinch", &VXMIMVWMBOMViewerSettingAtt::GetShowClinch},
     {"Glue Bead", "ShowGlueBead", &VXMIMVWMBOMViewerSettingAtt::GetShowGlueBead},
     {"Glue Drop", "ShowGlueDrop", &VXMIMVWMBOMViewerSettingAtt::GetShowGlueDrop},
     {"Rivet", "ShowRivet", &VXMIMVWMBOMViewerSettingAtt::GetShowRivet},
     {"Sealant Curve", "ShowSealantCurve", &VXMIMVWMBOMViewerSettingAtt::GetShowSealantCurve},
     {"Sealant Point", "ShowSealantPoint", &VXMIMVWMBOMViewerSettingAtt::GetShowSealantPoint},
     {"Screw", "ShowScrew", &VXMIMVWMBOMViewerSettingAtt::GetShowScrew},
     {"Spot Weld", "ShowSpotWeld", &VXMIMVWMBOMViewerSettingAtt::GetShowSpotWeld},
     {"Stud", "ShowStud", &VXMIMVWMBOMViewerSettingAtt::GetShowStud}}};

/// Name of the setting that keeps fasteners out that aren't assigned.
inline constexpr const char* VXMAssignedFastenersOnlySetting = "ShowAssignedFastenersOnly";
