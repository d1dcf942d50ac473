// Reads JSON text that has no fault for a handler of nlohmann's events, with RapidJSON.
//
// In place of: nlohmann's own pass, which takes the text byte by byte through an iterator that tells where it is. Why
// the same: both accept JSON by the grammar, and a handler of plans takes every number as the double next to it.
// Whatever RapidJSON refuses is read again by nlohmann, whose places and words the messages about faults go by. What it
// gains: the events of a plan file, with their places, take about half of what nlohmann's bare pass over it takes.

#pragma once

#include "planner/file/JsonPlaces.h"

#include <nlohmann/json.hpp>

#include <string_view>

namespace planner {

/// Reads the one value that the UTF-8 text holds from the offset on; places are told of each token before its event.
/// False when the text is faulty, or when the handler has had enough: what it was told then counts for nothing.
/// Memory that runs out is an exception.
bool readFaultlessJson(std::string_view text, std::size_t offset, TokenPlaces& places,
                       nlohmann::json_sax<nlohmann::json>& handler);

} // namespace planner
