#pragma once

#include "planner/model/Plan.h"

#include <memory>
#include <string_view>

/// Plans drawn in a line of text.
///
///   S1: +P =Q | S2@station { T1@loading: +X | T2: *w{Screw}<P } , S3: -P >A[P Q(R)] ; S1>S3
///
/// Steps stand side by side below the root "R": `|` joins one to the next by a link, `,` doesn't. A step has a name,
/// after `@` a kind, after `:` its items, and in braces its children.
///   Items: `+` first assigned, `=` assigned, `-` removed, `>` put out, `*` listed, and `.` stands in the plan and in
///   no list. A name in small letters is a fastener, with its type in braces (by default Rivet) and after each `<` what
///   it joins; any other is a product, with its children in round brackets, or an assembly with what it holds in square
///   ones. A name that comes again means the same item.
/// Behind `;` stand further links.
namespace plandrawing {

std::unique_ptr<planner::Plan> draw(std::string_view drawing);

} // namespace plandrawing
