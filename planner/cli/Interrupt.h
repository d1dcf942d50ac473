#pragma once

#include <string>

namespace planner {

/// Has the program end cleanly when a person or the system ends it by a signal: what standard error shows of its
/// progress goes, the unfinished file is removed, and then the signal does what it does.
void watchForInterrupts();

/// The file to be removed then, at most one; an empty path for none.
void removeWhenInterrupted(const std::string& path);

} // namespace planner
