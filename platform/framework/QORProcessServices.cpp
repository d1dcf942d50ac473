#include "QORPlatform/framework/QORProcessServices.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

void (*lastFunction)() = nullptr;

} // namespace

const char* QORGetEnv(const char* iName) {
    return iName ? std::getenv(iName) : nullptr;
}

void QORFatalError(const char* iText, const char* iSource) {
    std::fprintf(stderr, "%s %s\n", iText ? iText : "", iSource ? iSource : "");
    std::fflush(stderr);
    // Taken out first, so that a fatal error inside the last function can't call it again.
    if (auto* const function = std::exchange(lastFunction, nullptr)) {
        function();
    }
    std::abort();
}

void QORSetLastFunction(void (*iFunction)()) {
    lastFunction = iFunction;
}
