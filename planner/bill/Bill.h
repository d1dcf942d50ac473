#pragma once

#include "planner/model/ModelObject.h"

#include "QORPlatform/dom/DOM_Document.h"

#include <string>
#include <vector>

namespace planner {

/// An element of the BOM document, with the object of the plan behind it.
struct BillElement {
    int level;       ///< 1 for what stands at the top of the bill
    std::string tag; ///< "BOMNode" or "BOMFastener"
    std::string name;
    const ModelObject* object;
};

/// A bill as the elements of its document, each before those below it.
using Bill = std::vector<BillElement>;

/// Reads the document, whose elements have no identity, beside the list of the objects behind them, in which an
/// object comes after those of the elements below its own.
Bill readBill(const DOM_Document& document, const QORListValQORBaseUnknown_var& objects);

} // namespace planner
