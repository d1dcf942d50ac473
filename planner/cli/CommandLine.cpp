#include "planner/cli/CommandLine.h"

#include "planner/file/JsonText.h"

#include <CLI/CLI.hpp>

namespace planner {

namespace {

/// An empty name is most often a variable of a script that was never set.
std::string complaintOnName(const std::string& name) {
    return name.empty() ? "the name of the file is empty; expected a path or -" : std::string();
}

/// A parameter of the table, and what the parser holds of it.
struct Bound {
    const Parameter* parameter;
    const CLI::Option* option;
};

CLI::Option* addValued(CLI::App& app, const Parameter& parameter) {
    const std::string names = (parameter.letter ? std::string("-") + parameter.letter + "," : "") + parameter.name;
    CLI::Option* const option = parameter.takesSeveral
                                    ? app.add_option_function<std::vector<std::string>>(
                                          names, [](const std::vector<std::string>&) {}, parameter.help)
                                    : app.add_option_function<std::string>(
                                          names, [](const std::string&) {}, parameter.help);
    option->type_name(parameter.valueName)->default_str(parameter.preset);
    if (parameter.value == Value::Plan || parameter.value == Value::File) {
        option->check(complaintOnName);
    } else if (parameter.value == Value::OneOf) {
        option->check(CLI::IsMember(parameter.choices));
    }
    return option;
}

std::vector<Bound> addCommand(CLI::App& app, const Command& command) {
    CLI::App* const sub = app.add_subcommand(command.name, command.summary);
    sub->footer(command.details);
    std::vector<Bound> bound;
    for (const Parameter& operand : command.operands) {
        bound.push_back({&operand, addValued(*sub, operand)->required()});
    }
    for (const Parameter& option : command.options) {
        bound.push_back(
            {&option, option.value == Value::None ? sub->add_flag(option.name, option.help) : addValued(*sub, option)});
    }
    return bound;
}

/// Takes over what the parser found. Gives what is wrong with it.
std::optional<std::string> fill(Arguments& arguments, const std::vector<Bound>& bound) {
    for (const auto& [parameter, option] : bound) {
        if (option->count() == 0) {
            continue;
        }
        std::vector<std::string> values = option->results();
        if (parameter->value == Value::SomeOf) {
            std::vector<std::string> choices;
            if (auto error = readChoices(*parameter, values.front(), choices)) {
                return error;
            }
            values = std::move(choices);
        }
        arguments.set(parameter->name, std::move(values));
    }
    return std::nullopt;
}

/// What is wrong with the name of the command, if that is what is wrong.
std::optional<std::string> complaintOnCommand(int argc, const char* const* argv) {
    const std::string name = argc > 1 ? argv[1] : "-";
    std::string expected;
    for (const Command& command : commands()) {
        if (command.name == name) {
            return std::nullopt;
        }
        expected += (expected.empty() ? "" : ", ") + command.name;
    }
    return name.starts_with('-') ? std::nullopt
                                 : std::optional(inQuotes(name) + " is no command; expected one of " + expected);
}

} // namespace

CommandLine parseCommandLine(int argc, const char* const* argv) {
    CLI::App app("Manufacturing bills of materials from process plans", "planner");
    app.set_version_flag("--version", "planner " PLANNER_VERSION, "Print the version");
    app.require_subcommand(1);
    std::map<std::string, std::vector<Bound>> bound;
    for (const Command& command : commands()) {
        bound[command.name] = addCommand(app, command);
    }
    CommandLine line;
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion& version) {
        line.print = std::string(version.what()) + '\n';
        return line;
    } catch (const CLI::CallForHelp&) {
        line.print = app.help();
        return line;
    } catch (const CLI::ParseError& error) {
        line.error = complaintOnCommand(argc, argv).value_or(error.what()) + "; see planner --help";
        return line;
    }
    for (const Command& command : commands()) {
        if (app.got_subcommand(command.name)) {
            line.arguments.emplace(command);
            line.error = fill(*line.arguments, bound[command.name]).value_or("");
        }
    }
    return line;
}

} // namespace planner
