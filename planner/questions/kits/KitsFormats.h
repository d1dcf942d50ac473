#pragma once

#include "planner/questions/kits/Kits.h"
#include "planner/text/StyledText.h"

namespace planner {

/// Whether what is brought in is followed by its structure.
enum class KitStructure : bool { LeftOut, Shown };

/// For people: a table for each place, the sums, and what doesn't add up.
void writeKitsText(const Kits& kits, KitStructure structure, TextOutput& output);

/// For programs: see docs/kits.schema.json.
void writeKitsJson(const Kits& kits, const ModelObject& root, KitStructure structure, TextSink& sink);

} // namespace planner
