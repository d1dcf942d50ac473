#pragma once

#include "planner/cli/Bill.h"
#include "planner/cli/Options.h"
#include "planner/file/TextSink.h"

#include <string>

namespace planner {

/// Prints a bill in a format. The title heads the format for people.
void writeBill(const Bill& bill, Format format, const std::string& title, TextSink& sink);

} // namespace planner
