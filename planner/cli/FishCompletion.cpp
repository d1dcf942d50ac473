#include "planner/cli/Completion.h"

namespace planner {

namespace {

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char letter : text) {
        result += letter == '\'' || letter == '\\' ? "\\" : "";
        result += letter;
    }
    return result + '\'';
}

/// How a line goes on that offers the values of a parameter. Files are offered only where that is asked for.
std::string offer(const Parameter& parameter) {
    std::string words;
    for (const std::string& word : choiceWords(parameter)) {
        words += (words.empty() ? "" : " ") + word;
    }
    switch (parameter.value) {
    case Value::Plan:
        return " -k -a '(__fish_complete_suffix .json)'";
    case Value::File:
        return " -F";
    case Value::OneOf:
        return " -a " + quoted(words);
    case Value::SomeOf:
        return " -a " + quoted("(__fish_complete_list , \"string split ' ' '" + words + "'\")");
    case Value::None:
    case Value::Text:
        break;
    }
    return "";
}

std::string linesOf(const Command& command) {
    const std::string start = "complete -c planner -n '__fish_seen_subcommand_from " + command.name + "'";
    std::string lines =
        "complete -c planner -n __fish_use_subcommand -a " + command.name + " -d " + quoted(command.summary) + '\n';
    for (const Parameter& option : command.options) {
        lines += start + " -l " + option.name.substr(2);
        lines += option.letter ? std::string(" -s ") + option.letter : std::string();
        lines += option.value == Value::None ? "" : option.value == Value::File ? " -r" : " -x";
        lines += offer(option);
        lines += " -d " + quoted(option.help) + '\n';
    }
    for (const Parameter& operand : command.operands) {
        lines += start + offer(operand) + '\n';
    }
    return lines;
}

} // namespace

std::string fishCompletion() {
    std::string script = "# Words of the command line of planner, for fish.\n# Made by: planner completion fish\n\n"
                         "complete -c planner -f\n"
                         "complete -c planner -l help -s h -d 'Print the help'\n"
                         "complete -c planner -n __fish_use_subcommand -l version -d 'Print the version'\n";
    for (const Command& command : commands()) {
        script += linesOf(command);
    }
    return script;
}

} // namespace planner
