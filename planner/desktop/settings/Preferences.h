#pragma once

#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

#include <bitset>

namespace planner::desktop {

/// Which fasteners a bill shows.
struct FastenerChoice {
    std::bitset<VXMFastenerTypes.size()> shown;
    bool assignedOnly = true;

    friend bool operator==(const FastenerChoice&, const FastenerChoice&) = default;
};

/// What is kept between runs: by default all types, assigned ones only.
FastenerChoice readFasteners();
void keepFasteners(const FastenerChoice& choice);

/// Lets bills that are computed from now on go by a choice.
void applyFasteners(const FastenerChoice& choice);

/// How the window looks: as the desktop around it, or of its own.
enum class Appearance { System, Light, Dark };
Appearance readAppearance();
void keepAppearance(Appearance appearance);
void applyAppearance(Appearance appearance);

/// Display mode of bills that are opened without saying one.
int readBillMode();
void keepBillMode(int mode);

} // namespace planner::desktop
