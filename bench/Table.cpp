#include "bench/Table.h"

#include "bench/Measures.h"

#include <cmath>
#include <ctime>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <thread>

namespace bench {

bool Table::ReportContext(const Context&) {
    return true;
}

void Table::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        const std::string whole = run.benchmark_name();
        const std::string name = whole.substr(0, whole.find('/'));
        if (run.error_occurred) {
            std::cerr << name << ": " << run.error_message << '\n';
            hasFailed_ = true;
            continue;
        }
        Row row{name, run.report_label, {}};
        for (const auto& [what, counter] : run.counters) {
            row.measured[what] = counter.value;
        }
        std::cerr << name << ' ' << row.measured[kSize] << std::endl;
        rows_.push_back(std::move(row));
    }
}

double Table::Row::perElement(const char* what) const {
    return measured.at(what) / measured.at(kSize);
}

/// Exponent by which time has grown since the size before; 0 at the first size.
double Table::growthAt(std::size_t row) const {
    if (row == 0 || rows_[row - 1].name != rows_[row].name) {
        return 0;
    }
    const auto& before = rows_[row - 1].measured;
    const auto& now = rows_[row].measured;
    return std::log(now.at(kSeconds) / before.at(kSeconds)) / std::log(now.at(kSize) / before.at(kSize));
}

nlohmann::ordered_json Table::jsonOf(std::size_t index) const {
    const Row& row = rows_[index];
    nlohmann::ordered_json json{{"name", row.name}, {"size", static_cast<long>(row.measured.at(kSize))}};
    json["ns"] = 1e9 * row.perElement(kSeconds);
    if (growthAt(index) != 0) {
        json["growth"] = growthAt(index);
    }
    if (row.has(kPeak)) {
        json["bytes"] = row.perElement(kPeak);
        json["own_bytes"] = row.perElement(kPeak) - row.perElement(kFloorPeak);
    }
    if (row.has(kModel)) {
        json["model_share"] = row.measured.at(kModel) / row.measured.at(kSeconds);
    }
    if (row.has(kReference)) {
        json["ratio"] = row.measured.at(kSeconds) / row.measured.at(kReference);
        json["reference"] = row.reference;
    }
    return json;
}

namespace {

struct Column {
    const char* key;
    const char* head;
    int width;
    int digits;
    double scale;
};
constexpr Column kColumns[] = {
    {"size", "size", 9, 0, 1},    {"ns", "ns each", 10, 0, 1},     {"growth", "growth", 8, 2, 1},
    {"bytes", "B each", 8, 0, 1}, {"own_bytes", "own B", 8, 0, 1}, {"model_share", "model %", 9, 0, 100},
    {"ratio", "ratio", 8, 2, 1},
};
constexpr int kNameWidth = 22;

std::string today() {
    const std::time_t now = std::time(nullptr);
    char text[16];
    std::strftime(text, sizeof text, "%Y-%m-%d", std::localtime(&now));
    return text;
}

std::string processor() {
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);) {
        if (line.starts_with("model name")) {
            return line.substr(line.find(':') + 2);
        }
    }
    return "unknown processor";
}

} // namespace

void Table::print(std::ostream& out) const {
    out << std::left << std::setw(kNameWidth) << "plan" << std::right;
    for (const Column& column : kColumns) {
        out << std::setw(column.width) << column.head;
    }
    out << "  to\n" << std::fixed;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const auto json = jsonOf(row);
        out << std::left << std::setw(kNameWidth) << rows_[row].name << std::right;
        for (const Column& column : kColumns) {
            out << std::setw(column.width);
            if (json.contains(column.key)) {
                out << std::setprecision(column.digits) << column.scale * json[column.key].get<double>();
            } else {
                out << "";
            }
        }
        out << "  " << rows_[row].reference << '\n';
    }
}

nlohmann::ordered_json Table::json() const {
    nlohmann::ordered_json rows = nlohmann::ordered_json::array();
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        rows.push_back(jsonOf(row));
    }
    return {{"date", today()},
            {"processor", processor()},
            {"processors", std::thread::hardware_concurrency()},
            {"rows", std::move(rows)}};
}

} // namespace bench
