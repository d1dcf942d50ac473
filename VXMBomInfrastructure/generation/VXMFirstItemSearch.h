#pragma once

#include "QORPlatform/framework/QORVar.h"

#include <optional>

class VXMBomGenerator;

/// The body of GetFirstFlowNode for a generator that knows an item's first predecessor, none where a flow begins: goes
/// on through the generator, which calls itself so at any depth. A search that runs in a circle ends at the item where
/// it has entered it.
QORBaseUnknown_var
VXMSearchFirstItem(VXMBomGenerator& ioGenerator, const QORBaseUnknown_var& iItem,
                   std::optional<QORBaseUnknown_var> (*iFirstPredecessor)(const QORBaseUnknown_var& iItem));
