#pragma once

#include "planner/cli/Arguments.h"

namespace planner {

// What the entries of the table run, each in a file of its own.

/// Prints the bill of a plan.
Status runBom(const Arguments& arguments);

/// Draws the flow of a plan.
Status runFlow(const Arguments& arguments);

/// Says what is wrong in a plan.
Status runCheck(const Arguments& arguments);

/// Says why items are in the bill, or aren't.
Status runExplain(const Arguments& arguments);

/// Prints what has to be at each station or step.
Status runKits(const Arguments& arguments);

/// Tells what is different in the bill of another plan.
Status runDiff(const Arguments& arguments);

/// Writes a page for a browser with all that is known of a plan.
Status runReport(const Arguments& arguments);

/// Writes a plan back in its standard form.
Status runFmt(const Arguments& arguments);

/// Prints what teaches a shell the command line.
Status runCompletion(const Arguments& arguments);

/// Prints the manual page.
Status runMan(const Arguments& arguments);

} // namespace planner
