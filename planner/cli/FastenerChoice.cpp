#include "planner/cli/FastenerChoice.h"

#include "planner/file/JsonText.h"
#include "planner/model/FastenerSettings.h"

#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

#include <algorithm>
#include <bitset>

namespace planner {

namespace {

using Shown = std::bitset<VXMFastenerTypes.size()>;

/// Letters only, all of them small: "Spot Weld" and "spot-weld" are one name.
std::string plainName(std::string_view name) {
    std::string plain;
    for (const char letter : name) {
        if (letter >= 'A' && letter <= 'Z') {
            plain += static_cast<char>(letter - 'A' + 'a');
        } else if (letter != ' ' && letter != '-' && letter != '_') {
            plain += letter;
        }
    }
    return plain;
}

std::string typeNames() {
    std::string names;
    for (const VXMFastenerType& type : VXMFastenerTypes) {
        names += (names.empty() ? "" : ", ") + std::string(type.name);
    }
    return names;
}

std::optional<std::string> addNamed(std::string_view name, Shown& shown) {
    const auto type = std::find_if(VXMFastenerTypes.begin(), VXMFastenerTypes.end(), [&](const VXMFastenerType& each) {
        return plainName(each.name) == plainName(name);
    });
    if (type == VXMFastenerTypes.end()) {
        return "--fasteners names " + inQuotes(name) + "; expected all, none, or some of " + typeNames();
    }
    shown.set(static_cast<std::size_t>(type - VXMFastenerTypes.begin()));
    return std::nullopt;
}

std::optional<std::string> parseChoice(std::string_view choice, Shown& shown) {
    if (choice == "all") {
        shown.set();
        return std::nullopt;
    }
    if (choice == "none") {
        return std::nullopt;
    }
    for (;;) {
        const std::size_t comma = choice.find(',');
        if (auto error = addNamed(choice.substr(0, comma), shown)) {
            return error;
        }
        if (comma == std::string_view::npos) {
            return std::nullopt;
        }
        choice.remove_prefix(comma + 1);
    }
}

} // namespace

std::optional<std::string> setFasteners(const std::string& choice, bool unassignedAsWell) {
    Shown shown;
    if (auto error = parseChoice(choice, shown)) {
        return error;
    }
    for (std::size_t i = 0; i < VXMFastenerTypes.size(); ++i) {
        FastenerSettings::store().Set(VXMFastenerTypes[i].setting, shown[i] ? 1 : 0);
    }
    FastenerSettings::store().Set(VXMAssignedFastenersOnlySetting, unassignedAsWell ? 0 : 1);
    return std::nullopt;
}

} // namespace planner
