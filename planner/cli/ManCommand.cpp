// The manual page, in the language of roff's man macros.

#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"

#include <unistd.h>

namespace planner {

namespace {

/// A text as it is to be read: no sign of it is taken for a command.
std::string plain(const std::string& text) {
    std::string result;
    for (const char letter : text) {
        if ((letter == '.' || letter == '\'') && (result.empty() || result.back() == '\n')) {
            result += "\\&";
        }
        result += letter == '\\' ? "\\e" : letter == '-' ? "\\-" : std::string(1, letter);
    }
    return result;
}

std::string bold(const std::string& text) {
    return "\\fB" + plain(text) + "\\fR";
}

std::string slanted(const std::string& text) {
    return "\\fI" + plain(text) + "\\fR";
}

std::string operandsOf(const Command& command) {
    std::string text;
    for (const Parameter& operand : command.operands) {
        text += ' ' + slanted(operand.name) + (operand.takesSeveral ? "..." : "");
    }
    return text;
}

/// Sentences on the values of a parameter behind its help line.
std::string valuesOf(const Parameter& parameter) {
    std::string text;
    for (const std::string& choice : parameter.choices) {
        text += (text.empty() ? "One of " : ", ") + bold(choice);
    }
    if (!text.empty()) {
        text = (parameter.value == Value::SomeOf ? "Some of" + text.substr(6) : text) + ".\n";
    }
    return parameter.preset.empty() ? text : text + "By default " + bold(parameter.preset) + ".\n";
}

std::string paragraph(const std::string& heading, const Parameter& parameter) {
    return ".TP\n" + heading + '\n' + plain(parameter.help) + ".\n" + valuesOf(parameter);
}

std::string sectionOf(const Command& command) {
    std::string text = ".SS " + plain(command.name) + operandsOf(command) + '\n' + plain(command.summary) + ".\n";
    for (const Parameter& operand : command.operands) {
        text += paragraph(slanted(operand.name), operand);
    }
    for (const Parameter& option : command.options) {
        const std::string shortForm = option.letter ? bold(std::string("-") + option.letter) + ", " : "";
        const std::string value = option.value == Value::None ? "" : ' ' + slanted(option.valueName);
        text += paragraph(shortForm + bold(option.name) + value, option);
    }
    return command.details.empty() ? text : text + ".PP\n" + plain(command.details);
}

constexpr const char* kHead = R"(.SH NAME
planner \- manufacturing bills of materials from process plans
.SH SYNOPSIS
.B planner
.I COMMAND
.RI [ OPTION ...]
.I ARGUMENT\fR...
.br
.B planner \-\-version
.br
.B planner
.RI [ COMMAND ]
.B \-\-help
.SH DESCRIPTION
Reads process plans and answers what is built by them.
A plan file is JSON; what it holds and what a command writes is told in the documents that are installed with the program.
.SH COMMANDS
)";

constexpr const char* kTail = R"(.SH EXIT STATUS
.TP
.B 0
All is well.
.TP
.B 1
A command that looks for something has found it: a difference, a fault of the plan.
.TP
.B 2
Bad input, or an output that can't be written. Standard error says where and what, and no file is touched.
.TP
.B 3
A fault of the program itself, or memory that ran out.
.SH ENVIRONMENT
.TP
.B FAB_BOM_OLD_ALGORITHM
The value TRUE has every bill made by the legacy algorithm.
)";

} // namespace

Status runMan(const Arguments& /*arguments*/) {
    TextSink sink(STDOUT_FILENO);
    sink.put(".TH PLANNER 1 \"\" \"planner " PLANNER_VERSION "\"\n");
    sink.put(kHead);
    for (const Command& command : commands()) {
        sink.put(sectionOf(command));
    }
    sink.put(kTail);
    return endOfOutput(sink.finish());
}

} // namespace planner
