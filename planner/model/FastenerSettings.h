#pragma once

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/settings/QORSettingStore.h"

#include <array>
#include <string_view>

namespace planner {

/// A fastener type that can be shown: its name, and the setting that shows it.
struct FastenerType {
    std::string_view name;
    const char* setting;
};
inline constexpr std::array<FastenerType, 12> kFastenerTypes{{{"Adhesive Curve", "ShowAdhesiveCurve"},
                                                              {"Adhesive Point", "ShowAdhesivePoint"},
                                                              {"Arc Weld", "ShowArcWeld"},
                                                              {"Clinch", "ShowClinch"},
                                                              {"Glue Bead", "ShowGlueBead"},
                                                              {"Glue Drop", "ShowGlueDrop"},
                                                              {"Rivet", "ShowRivet"},
                                                              {"Sealant Curve", "ShowSealantCurve"},
                                                              {"Sealant Point", "ShowSealantPoint"},
                                                              {"Screw", "ShowScrew"},
                                                              {"Spot Weld", "ShowSpotWeld"},
                                                              {"Stud", "ShowStud"}}};

/// Name of the setting that keeps fasteners out that aren't assigned.
inline constexpr const char* kAssignedOnlySetting = "ShowAssignedFastenersOnly";

/// Registers the component of the fastener settings for as long as it lives. What the component answers is what the
/// store holds: 1 is on, any other value off, and a value that was never set leaves the asker's own default.
class FastenerSettings {
public:
    FastenerSettings();

    /// The values that the component answers from.
    static QORSettingStore& store();

private:
    QORMetaClass class_;
};

} // namespace planner
