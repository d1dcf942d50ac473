#include "QORPlatform/framework/QORObjectCounts.h"

#include <algorithm>
#include <vector>

namespace {

/// Never destroyed: counts of classes come and go until the very end of the process.
std::vector<const QORObjectCount*>& Registered() {
    static auto* const counts = new std::vector<const QORObjectCount*>();
    return *counts;
}

} // namespace

QORObjectCount::QORObjectCount(std::string_view iClass) : _class(iClass) {
    Registered().push_back(this);
}

QORObjectCount::~QORObjectCount() {
    std::erase(Registered(), this);
}

std::map<std::string, long> QORLivingObjects() {
    std::map<std::string, long> living;
    for (const QORObjectCount* count : Registered()) {
        living[std::string(count->GetClass())] += count->GetLiving();
    }
    std::erase_if(living, [](const auto& iEntry) { return iEntry.second == 0; });
    return living;
}
