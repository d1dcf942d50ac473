#pragma once

#include <nlohmann/json.hpp>

#include <string>

/// Values against schemas, as far as ours go: types, required and known keys, entries, words, alternatives, references.
namespace schemacheck {

/// What is wrong, a line for each fault; empty when nothing is.
std::string faultsOf(const nlohmann::json& value, const nlohmann::json& schema);

} // namespace schemacheck
