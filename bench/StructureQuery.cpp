#include "bench/StructureQuery.h"

#include <sqlite3.h>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMImplementation.hpp>

#include <stdexcept>
#include <vector>

namespace bench {

namespace {

constexpr const char* kTables = R"(
    CREATE TABLE product(id INTEGER PRIMARY KEY, name TEXT) WITHOUT ROWID;
    CREATE TABLE part(parent INTEGER, place INTEGER, child INTEGER, PRIMARY KEY(parent, place)) WITHOUT ROWID;
    BEGIN)";

constexpr const char* kStructure = R"(
    WITH RECURSIVE below(level, place, id) AS (
        SELECT 1, 0, min(id) FROM product
        UNION ALL
        SELECT level + 1, part.place, child FROM below JOIN part ON part.parent = below.id
        ORDER BY 1 DESC, 2)
    SELECT level, name FROM below JOIN product USING(id))";

void run(sqlite3* database, const char* statements) {
    if (sqlite3_exec(database, statements, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

/// A statement that is run once or many times.
class Statement {
public:
    Statement(sqlite3* database, const char* text) {
        if (sqlite3_prepare_v2(database, text, -1, &statement_, nullptr) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(database));
        }
    }
    ~Statement() { sqlite3_finalize(statement_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    sqlite3_stmt* get() const { return statement_; }
    bool step() { return sqlite3_step(statement_) == SQLITE_ROW; }

private:
    sqlite3_stmt* statement_ = nullptr;
};

} // namespace

StructureQuery::StructureQuery(const planner::Plan& plan) {
    sqlite3_open(":memory:", &database_);
    run(database_, kTables);
    fill(plan);
    run(database_, "COMMIT");
}

StructureQuery::~StructureQuery() {
    sqlite3_close(database_);
}

void StructureQuery::fill(const planner::Plan& plan) {
    Statement product(database_, "INSERT INTO product VALUES(?, ?)");
    Statement part(database_, "INSERT INTO part VALUES(?, ?, ?)");
    for (planner::Item* item : plan.items) {
        sqlite3_bind_int(product.get(), 1, item->GetIdentity());
        sqlite3_bind_text(product.get(), 2, item->name().c_str(), -1, SQLITE_TRANSIENT);
        product.step();
        sqlite3_reset(product.get());
        int place = 0;
        for (planner::ModelObject* child : static_cast<planner::Product&>(*item).children) {
            sqlite3_bind_int(part.get(), 1, item->GetIdentity());
            sqlite3_bind_int(part.get(), 2, ++place);
            sqlite3_bind_int(part.get(), 3, child->GetIdentity());
            part.step();
            sqlite3_reset(part.get());
        }
    }
}

std::size_t StructureQuery::writeRows() const {
    xercesc::DOMDocument* const document = xercesc::DOMImplementation::getImplementation()->createDocument();
    std::vector<xercesc::DOMNode*> above{document->createElement(u"BOM")};
    document->appendChild(above.front());
    std::size_t count = 0;
    for (Statement rows(database_, kStructure); rows.step(); ++count) {
        xercesc::DOMElement* const element = document->createElement(u"BOMNode");
        above.resize(static_cast<std::size_t>(sqlite3_column_int(rows.get(), 0)));
        above.back()->appendChild(element);
        element->setAttribute(u"DisplayName", static_cast<const XMLCh*>(sqlite3_column_text16(rows.get(), 1)));
        above.push_back(element);
    }
    document->release();
    return count;
}

} // namespace bench
