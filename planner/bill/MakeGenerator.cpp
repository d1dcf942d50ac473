#include "planner/bill/MakeGenerator.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace planner {

namespace {

using Bytes = long long;

/// What a node takes from its making to its line in the bill.
constexpr Bytes kBytesPerNode = 400;

/// So many are tried whatever the memory.
constexpr long long kFewNodes = 100'000;

/// The number behind a word of a file that lists names and values, as "MemAvailable:" in /proc/meminfo.
std::optional<Bytes> numberBehind(const std::string& word, const std::string& path) {
    std::ifstream file(path);
    for (std::string read; file >> read;) {
        Bytes number = 0;
        if (read == word) {
            return file >> number ? std::optional(number) : std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<Bytes> numberIn(const std::string& path) {
    std::ifstream file(path);
    Bytes number = 0;
    return file >> number ? std::optional(number) : std::nullopt; // "max" is no number
}

/// The folders that tell of this process's control groups, in both versions that there are. A container may see its own
/// group at the root.
std::vector<std::string> groupFolders() {
    std::vector<std::string> folders{"/sys/fs/cgroup/memory", "/sys/fs/cgroup"};
    std::ifstream groups("/proc/self/cgroup");
    for (std::string line; std::getline(groups, line);) {
        const std::size_t path = line.find(":/");
        if (path == std::string::npos) {
            continue;
        }
        const bool isMemory = line.find(":memory:") != std::string::npos;
        if (isMemory || line.starts_with("0::")) {
            // A limit further up counts for all below it.
            for (std::string folder = line.substr(path + 1); folder.size() > 1;
                 folder.erase(std::max<std::size_t>(folder.rfind('/'), 1))) {
                folders.push_back((isMemory ? folders[0] : folders[1]) + folder);
            }
        }
    }
    return folders;
}

/// Lowers a number to what a limit leaves, when there is one.
void lower(std::optional<Bytes>& left, std::optional<Bytes> limit, Bytes used) {
    if (limit) {
        const Bytes rest = std::max<Bytes>(*limit - used, 0);
        left = std::min(left.value_or(rest), rest);
    }
}

/// Lowers a number to what the limit of a control group leaves. Files that were read once count as used there, but make
/// room when there is need.
void lowerByGroup(std::optional<Bytes>& left, const std::string& folder, const char* limit, const char* used,
                  const char* files) {
    lower(left, numberIn(folder + limit),
          numberIn(folder + used).value_or(0) - numberBehind(files, folder + "/memory.stat").value_or(0));
}

std::optional<Bytes> memoryLeft() {
    constexpr Bytes kKibibyte = 1024;
    std::optional<Bytes> left = numberBehind("MemAvailable:", "/proc/meminfo");
    if (left) {
        *left *= kKibibyte;
    }
    for (const std::string& folder : groupFolders()) {
        lowerByGroup(left, folder, "/memory.max", "/memory.current", "inactive_file");
        lowerByGroup(left, folder, "/memory.limit_in_bytes", "/memory.usage_in_bytes", "total_inactive_file");
    }
    rlimit space{};
    if (getrlimit(RLIMIT_AS, &space) == 0 && space.rlim_cur != RLIM_INFINITY) {
        const Bytes used = numberBehind("VmSize:", "/proc/self/status").value_or(0) * kKibibyte;
        lower(left, static_cast<Bytes>(space.rlim_cur), used);
    }
    return left;
}

} // namespace

long long nodesThatFit() {
    const std::optional<Bytes> left = memoryLeft();
    return left ? std::max(*left / 2 / kBytesPerNode, kFewNodes) : VXMBomGenerator::kMaxNodes;
}

std::unique_ptr<VXMBomGenerator> makeGenerator(const QORBaseUnknown_var& root) {
    std::unique_ptr<VXMBomGenerator> generator = VXMMakeBomGenerator(root);
    if (generator) {
        generator->SetMaxNodes(nodesThatFit());
    }
    return generator;
}

} // namespace planner
