#include "QORPlatform/framework/QORNullVarError.h"

#include <string>

QORNullVarError::QORNullVarError(std::string_view iInterface)
    : std::logic_error("call through a null handle on " + std::string(iInterface)) {}

QORNullVarError::~QORNullVarError() = default;

void ThrowErrorNullVar(std::string_view iInterface) {
    throw QORNullVarError(iInterface);
}
