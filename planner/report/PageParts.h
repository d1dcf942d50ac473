#pragma once

#include <string_view>

namespace planner {

/// Style and script of the page, from page.css and page.js.
extern const std::string_view kPageStyle;
extern const std::string_view kPageScript;

} // namespace planner
