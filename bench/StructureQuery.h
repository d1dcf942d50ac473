#pragma once

#include "planner/model/Plan.h"

#include <cstddef>

struct sqlite3;

namespace bench {

/// The products of a plan with their structure in a database in memory, below the first of them.
class StructureQuery {
public:
    explicit StructureQuery(const planner::Plan& plan);
    ~StructureQuery();
    StructureQuery(const StructureQuery&) = delete;
    StructureQuery& operator=(const StructureQuery&) = delete;

    /// Asks for the structure from the top down, depth first, makes the document of the bill from the rows with
    /// Xerces-C, and releases it. Gives how many rows there were.
    std::size_t writeRows() const;

private:
    void fill(const planner::Plan& plan);

    sqlite3* database_ = nullptr;
};

} // namespace bench
