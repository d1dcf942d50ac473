#pragma once

#include "planner/questions/explain/Explain.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace planner {

/// What a kit is made for. A step belongs to the station that it is or stands in; outside stations, to what it stands
/// in directly below the root, or to itself there.
enum class KitsBy : std::uint8_t { Station, Step };

/// An item, and how often it is listed.
struct KitItem {
    const ModelObject* item;
    std::size_t number = 0;
};

/// The fasteners of one process type, "" for those without.
struct KitFasteners {
    std::string type;
    std::vector<KitItem> items;
    std::size_t number = 0; ///< of all of them
};

/// What has to be at one place, whether the bill shows it or not. Items stand in the order in which they are listed.
struct Kit {
    const ModelObject* place;
    std::vector<KitItem> broughtIn;      ///< first assigned there, without fasteners
    std::vector<KitFasteners> fasteners; ///< set there, by type
    std::vector<KitItem> takenAway;
    std::vector<KitItem> putOut;
};

/// An item that the kits hold more or less often than the bill.
struct KitDifference {
    const ModelObject* item;
    std::size_t inKits;
    std::size_t inBill;
    std::vector<std::string> reasons; ///< a few, the first being the best, and how many more; at least one
};

/// All kits in the order of the flow, and how they add up. An item counts in the kits as often as it is brought in, by
/// itself or as a part of something, put out, or set. Sums go up to kCountless (Structure.h).
struct Kits {
    KitsBy by;
    std::vector<Kit> kits = {};
    std::size_t broughtIn = 0; ///< without the parts of what is brought in
    std::size_t parts = 0;     ///< in the structure of what is brought in
    std::size_t fasteners = 0;
    std::size_t putOut = 0;
    std::size_t inBill = 0;                      ///< elements of the bill
    std::vector<KitDifference> differences = {}; ///< in the order of the plan
};

/// The kits of a plan whose bill was recorded.
Kits kitsOf(const Plan& plan, const RecordedBill& bill, KitsBy by);

} // namespace planner
