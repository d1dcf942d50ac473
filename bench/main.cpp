// Measures, prints one table, and writes it as JSON. Options of Google Benchmark work beside --quick and --json FILE.

#include "bench/Measures.h"
#include "bench/Table.h"

#include <fstream>
#include <iostream>
#include <string_view>
#include <vector>

namespace {

struct Options {
    bool isQuick = false;
    std::string json;
};

/// Takes our own options out of the arguments.
Options takeOptions(int& count, char** arguments) {
    Options options;
    int kept = 1;
    for (int index = 1; index < count; ++index) {
        const std::string_view argument = arguments[index];
        if (argument == "--quick") {
            options.isQuick = true;
        } else if (argument == "--json" && index + 1 < count) {
            options.json = arguments[++index];
        } else {
            arguments[kept++] = arguments[index];
        }
    }
    count = kept;
    return options;
}

} // namespace

int main(int argc, char** argv) {
    const Options options = takeOptions(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    bench::addBillBenches(options.isQuick);
    bench::addFileBenches(options.isQuick);
    bench::addLiveBenches(options.isQuick);
    bench::Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    table.print(std::cout);
    if (!options.json.empty()) {
        std::ofstream file(options.json);
        file << table.json().dump(2) << '\n';
        if (!file.flush()) {
            std::cerr << options.json << ": can't be written\n";
            return 1;
        }
    }
    return table.hasFailed() ? 1 : 0;
}
