#pragma once

#include "planner/questions/kits/Kits.h"

#include <functional>

namespace planner {

/// Stands for any number that is as large or larger, and for one that nobody can count.
inline constexpr std::size_t kCountless = 1'000'000'000'000'000;

/// The sum of two numbers up to kCountless, which it doesn't pass.
std::size_t sumOf(std::size_t left, std::size_t right);

/// How often each item occurs in the structure of others, which are listed so often. What holds itself isn't opened
/// again inside itself; where the ways through such loops are more than can be followed, what is in them is countless.
/// Each item is opened once besides, however many hold it.
std::vector<KitItem> partsOf(const std::vector<KitItem>& wholes);

/// Calls visit(part, level) for the parts in the structure of an item, an item before its parts, from level 1. What
/// holds itself isn't opened again inside itself. Gives whether that was all: there are no more calls than kMostParts.
inline constexpr std::size_t kMostParts = 100'000;
bool visitStructure(const ModelObject& item, const std::function<void(const ModelObject& part, int level)>& visit);

} // namespace planner
