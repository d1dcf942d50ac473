#include "planner/cli/Completion.h"

namespace planner {

namespace {

/// A text in single quotes; what the reader behind the quotes takes for its own signs is led by a backslash.
std::string quoted(const std::string& text, std::string_view signs) {
    std::string result;
    for (const char letter : text) {
        if (letter == '\'') {
            result += "'\\''";
            continue;
        }
        result += signs.find(letter) != std::string_view::npos ? "\\" : "";
        result += letter;
    }
    return result;
}

std::string action(const Parameter& parameter) {
    std::string words;
    for (const std::string& word : choiceWords(parameter)) {
        words += (words.empty() ? "" : " ") + word;
    }
    switch (parameter.value) {
    case Value::Plan:
        return "_files -g \"*.json\"";
    case Value::File:
        return "_files";
    case Value::OneOf:
        return '(' + words + ')';
    case Value::SomeOf:
        return "_values -s , \"" + parameter.valueName + "\" " + words;
    case Value::None:
    case Value::Text:
        break;
    }
    return "";
}

/// A line of the arguments of a command.
std::string line(const std::string& text) {
    return " \\\n            '" + text + '\'';
}

std::string optionLines(const Parameter& option) {
    const std::string help = '[' + quoted(option.help, "[]:\\") + ']';
    if (option.value == Value::None) {
        return line(option.name + help);
    }
    const std::string value = help + ':' + option.valueName + ':' + quoted(action(option), "");
    const std::string longForm = option.name + '=' + value;
    return option.letter ? line(std::string("-") + option.letter + value) + line(longForm) : line(longForm);
}

std::string branchOf(const Command& command) {
    std::string text = "    " + command.name + ")\n        _arguments" + line("(- *)--help[Print the help]");
    for (const Parameter& option : command.options) {
        text += optionLines(option);
    }
    for (const Parameter& operand : command.operands) {
        text += line((operand.takesSeveral ? "*:" : ":") + operand.name + ':' + quoted(action(operand), ""));
    }
    return text + "\n        ;;\n";
}

} // namespace

std::string zshCompletion() {
    std::string names;
    std::string branches;
    for (const Command& command : commands()) {
        names += "            '" + command.name + ':' + quoted(command.summary, ":\\") + "'\n";
        branches += branchOf(command);
    }
    return R"(#compdef planner
# Words of the command line of planner, for zsh.
# Made by: planner completion zsh

_planner() {
    local -a commands
    if ((CURRENT == 2)); then
        commands=(
)" + names +
           R"(        )
        _describe command commands
        _arguments '--help[Print the help]' '--version[Print the version]'
        return
    fi
    local command=$words[2]
    shift words
    ((CURRENT--))
    case $command in
)" + branches +
           R"(    esac
}

if [[ $funcstack[1] == _planner ]]; then
    _planner "$@"
else
    compdef _planner planner
fi
)";
}

} // namespace planner
