#pragma once

#include "planner/cli/Command.h"

#include <map>
#include <optional>

namespace planner {

/// What a command was called with. Parameters go by their names in the table of commands; to ask for one that the
/// command doesn't have is a fault of the program, and raises std::logic_error.
class Arguments {
public:
    explicit Arguments(const Command& command) : command_(&command) {}

    const Command& command() const { return *command_; }

    /// Whether the command has a parameter of that name.
    bool knows(const std::string& name) const;

    /// Whether a switch, or another parameter, was given.
    bool has(const std::string& name) const;

    /// The value that was given, else the preset one, else nothing.
    std::optional<std::string> value(const std::string& name) const;

    /// The value of an operand, or of an option with a preset.
    std::string text(const std::string& name) const { return value(name).value_or(""); }

    /// All words of an operand that takes several; the choices that were named, spelt as in the table.
    std::vector<std::string> values(const std::string& name) const;

    void set(const std::string& name, std::vector<std::string> values);

private:
    const Parameter* find(const std::string& name) const;
    const Parameter& parameter(const std::string& name) const;

    const Command* command_;
    std::map<std::string, std::vector<std::string>> given_;
};

/// Reads names with commas between them as choices of a parameter, spelt as in the table. Gives what is wrong with
/// them.
std::optional<std::string> readChoices(const Parameter& parameter, std::string_view text,
                                       std::vector<std::string>& choices);

} // namespace planner
