#include "VXMBomInfrastructure/generation/VXMHandleOrder.h"

#include <cstdint>

bool operator<(const QORBaseUnknown_var& iLeft, const QORBaseUnknown_var& iRight) {
    const auto left = reinterpret_cast<std::uintptr_t>(iLeft->GetImpl(0));
    return left < reinterpret_cast<std::uintptr_t>(iRight->GetImpl(0));
}
