#pragma once

#include <benchmark/benchmark.h>

#include <nlohmann/json.hpp>

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// Collects all runs for one table, which is printed and written as JSON when all is measured. Names each run while it
/// goes on.
class Table final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    void print(std::ostream& out) const;
    nlohmann::ordered_json json() const;

    bool hasFailed() const { return hasFailed_; }

private:
    struct Row {
        std::string name;
        std::string reference;
        std::map<std::string, double> measured;

        bool has(const char* what) const { return measured.contains(what); }
        double perElement(const char* what) const;
    };

    double growthAt(std::size_t row) const;
    nlohmann::ordered_json jsonOf(std::size_t row) const;

    std::vector<Row> rows_;
    bool hasFailed_ = false;
};

} // namespace bench
