#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace planner {

/// Kinds of item, with their words in the plan file.
enum class ItemKind : std::uint8_t { Product, Assembly, Fastener, Item };
inline constexpr std::array<std::string_view, 4> kItemKinds{"product", "assembly", "fastener", "item"};

/// Kinds of activity, with their words in the plan file. A logical node is no step.
enum class ActivityKind : std::uint8_t { Activity, Loading, Station, Grouping, Logical };
inline constexpr std::array<std::string_view, 5> kActivityKinds{"activity", "loading", "station", "grouping",
                                                                "logical"};

inline std::string_view kindText(ItemKind kind) {
    return kItemKinds[static_cast<std::size_t>(kind)];
}
inline std::string_view kindText(ActivityKind kind) {
    return kActivityKinds[static_cast<std::size_t>(kind)];
}

} // namespace planner
