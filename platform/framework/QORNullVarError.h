#pragma once

#include "QORPlatform/text/QORExport.h"

#include <stdexcept>
#include <string_view>

/// Raised by a call through a null handle.
class QOR_EXPORT QORNullVarError : public std::logic_error {
public:
    explicit QORNullVarError(std::string_view iInterface);
    ~QORNullVarError() override;
};

/// Raises QORNullVarError for a handle on the named interface.
[[noreturn]] QOR_EXPORT void ThrowErrorNullVar(std::string_view iInterface);
