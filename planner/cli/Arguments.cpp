#include "planner/cli/Arguments.h"

#include "planner/file/JsonText.h"

#include <algorithm>
#include <stdexcept>

namespace planner {

namespace {

const Parameter* named(const std::vector<Parameter>& parameters, const std::string& name) {
    const auto found = std::find_if(parameters.begin(), parameters.end(),
                                    [&](const Parameter& parameter) { return parameter.name == name; });
    return found == parameters.end() ? nullptr : &*found;
}

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

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text;
}

} // namespace

const Parameter* Arguments::find(const std::string& name) const {
    const Parameter* const option = named(command_->options, name);
    return option ? option : named(command_->operands, name);
}

const Parameter& Arguments::parameter(const std::string& name) const {
    const Parameter* const found = find(name);
    if (!found) {
        throw std::logic_error(command_->name + " has no parameter " + name);
    }
    return *found;
}

bool Arguments::knows(const std::string& name) const {
    return find(name) != nullptr;
}

bool Arguments::has(const std::string& name) const {
    return given_.contains(parameter(name).name);
}

std::optional<std::string> Arguments::value(const std::string& name) const {
    const Parameter& asked = parameter(name);
    const auto given = given_.find(name);
    if (given != given_.end()) {
        return given->second.front();
    }
    return asked.preset.empty() ? std::nullopt : std::optional(asked.preset);
}

std::vector<std::string> Arguments::values(const std::string& name) const {
    const Parameter& asked = parameter(name);
    const auto given = given_.find(name);
    if (given != given_.end()) {
        return given->second;
    }
    return asked.preset.empty() ? std::vector<std::string>() : std::vector{asked.preset};
}

void Arguments::set(const std::string& name, std::vector<std::string> values) {
    given_[parameter(name).name] = std::move(values);
}

std::optional<std::string> readChoices(const Parameter& parameter, std::string_view text,
                                       std::vector<std::string>& choices) {
    for (;;) {
        const std::size_t comma = text.find(',');
        const std::string_view name = text.substr(0, comma);
        const auto choice = std::find_if(parameter.choices.begin(), parameter.choices.end(),
                                         [&](const std::string& each) { return plainName(each) == plainName(name); });
        if (choice == parameter.choices.end()) {
            return parameter.name + " names " + inQuotes(std::string(name)) + "; expected " + joined(parameter.choices);
        }
        choices.push_back(*choice);
        if (comma == std::string_view::npos) {
            return std::nullopt;
        }
        text.remove_prefix(comma + 1);
    }
}

} // namespace planner
