#pragma once

#include "planner/cli/Status.h"

#include <string>
#include <vector>

namespace planner {

class Arguments;

/// What the value of a parameter is: what is taken for it, and what a shell offers while it is typed.
enum class Value {
    None,   ///< a switch
    Text,   ///< any text
    Plan,   ///< a plan file
    File,   ///< another file
    OneOf,  ///< one of the choices
    SomeOf, ///< choices with commas between them; letter case, blanks and hyphens don't count
};

/// An option of a command, or one of its operands.
struct Parameter {
    std::string name; ///< "--root"; capitals for an operand
    std::string help; ///< one line
    Value value = Value::None;
    std::string valueName = {}; ///< of an option that isn't a switch
    std::vector<std::string> choices = {};
    std::string preset = {};   ///< the value that counts when none is given; empty for none
    char letter = '\0';        ///< short form of an option
    bool takesSeveral = false; ///< an operand that takes all words that are left
};

/// A command of the program. Operands have to be given, options needn't.
struct Command {
    std::string name;
    std::string summary; ///< one line
    std::vector<Parameter> operands;
    std::vector<Parameter> options;
    Status (*run)(const Arguments&);
    std::string details = {}; ///< what the manual says beyond the options: sentences, paragraphs ended by a line end
};

/// All commands, in the order of help and manual. Command line, messages, help, completion and manual are made from
/// this table.
const std::vector<Command>& commands();

} // namespace planner
