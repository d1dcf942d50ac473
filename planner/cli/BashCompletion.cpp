// One function for all commands. What it may offer is decided by the command, the first word that is no option, and by
// the option in front of the word that is being typed. Bash takes "=" for a word of its own.

#include "planner/cli/Completion.h"

namespace planner {

namespace {

constexpr const char* kHead = R"(# Words of the command line of planner, for bash.
# Made by: planner completion bash

# Offers the choices of a list in which commas stand between them.
_planner_list() {
    local done=
    [[ $word == *,* ]] && done=${word%,*},
    COMPREPLY=($(compgen -P "$done" -W "$1" -- "${word##*,}"))
}

# Offers files, of a pattern if there are some.
_planner_files() {
    local IFS=$'\n'
    compopt -o filenames 2>/dev/null
    COMPREPLY=()
    [[ $1 ]] && COMPREPLY=($(compgen -f -X "!$1" -- "$word"; compgen -d -- "$word"))
    [[ ${#COMPREPLY[@]} -gt 0 ]] || COMPREPLY=($(compgen -f -- "$word"))
}

_planner() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command= i
    [[ $before == = ]] && before=${COMP_WORDS[COMP_CWORD-2]}
    [[ $word == = ]] && word=
    for ((i = 1; i < COMP_CWORD; i++)); do
        [[ ${COMP_WORDS[i]} == -* ]] || { command=${COMP_WORDS[i]}; break; }
    done
    COMPREPLY=()
    case $command:$before in
)";

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

/// What to do while a value is typed; empty when there is nothing to offer.
std::string offer(const Parameter& parameter) {
    const std::string choices = '"' + joined(choiceWords(parameter)) + '"';
    switch (parameter.value) {
    case Value::Plan:
        return "_planner_files '*.json'";
    case Value::File:
        return "_planner_files";
    case Value::OneOf:
        return "COMPREPLY=($(compgen -W " + choices + " -- \"$word\"))";
    case Value::SomeOf:
        return "_planner_list " + choices;
    case Value::None:
    case Value::Text:
        break;
    }
    return ":";
}

std::string branch(const std::string& pattern, const std::string& action) {
    return "    " + pattern + ") " + action + " ;;\n";
}

/// After the options with values, the words of the command: its options behind a hyphen, else its first operand.
std::string branchesOf(const Command& command) {
    std::string branches;
    std::string words = "--help";
    for (const Parameter& option : command.options) {
        words += ' ' + option.name;
        if (option.value != Value::None) {
            const std::string shortForm = option.letter ? '|' + command.name + ":-" + option.letter : std::string();
            branches += branch(command.name + ':' + option.name + shortForm, offer(option));
        }
    }
    const std::string options = "COMPREPLY=($(compgen -W \"" + words + "\" -- \"$word\"))";
    const std::string operand = command.operands.empty() ? ":" : offer(command.operands.front());
    return branches +
           branch(command.name + ":*", "if [[ $word == -* ]]; then " + options + "; else " + operand + "; fi");
}

} // namespace

std::string bashCompletion() {
    std::string script = kHead;
    std::string names;
    for (const Command& command : commands()) {
        script += branchesOf(command);
        names += command.name + ' ';
    }
    script += branch(":*", "COMPREPLY=($(compgen -W \"" + names + "--help --version\" -- \"$word\"))");
    return script + "    esac\n}\n\ncomplete -F _planner planner\n";
}

std::vector<std::string> choiceWords(const Parameter& parameter) {
    std::vector<std::string> words = parameter.choices;
    for (std::string& word : words) {
        for (char& letter : word) {
            letter = letter == ' ' ? '-' : letter;
        }
    }
    return words;
}

} // namespace planner
