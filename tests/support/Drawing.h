#pragma once

#include "support/TestModel.h"

#include <string>
#include <string_view>

/// Models drawn in a line of text.
///
///   S1: +P =Q | S2: -P >A[P Q(R)] *w{Screw}? , S3@station { T1@loading: +X | T2 }  ; S1>S3
///
/// Steps stand side by side: `|` joins one to the next by a link, `,` doesn't. A step has a name, after `@` a kind
/// (loading, station, grouping, logical, resource), after `:` its items, and in braces its children.
///   Items: `+` first assigned, `=` assigned, `-` removed, `>` put out, `*` a fastener, with its process type in braces
///   (by default Rivet) and `?` behind one that isn't assigned. `P(Q R)` is a plain product with child occurrences,
///   `A[P Q]` an assembly that holds P and Q. A name that comes again means the same object.
///   A resource has in `{ }` the activities of its behaviour and in `( )` its child products; it knows only + and >.
/// Behind `;` stand further links.
namespace testmodel {

/// Draws steps under a root activity "R", which is given back.
Thing& drawPlan(World& world, std::string_view drawing);

/// Draws resources; the first one is the root and is given back.
Thing& drawResource(World& world, std::string_view drawing);

} // namespace testmodel
