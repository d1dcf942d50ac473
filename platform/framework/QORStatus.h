#pragma once

#include <cstdint>

/// Result of an operation that can fail: 0 for success, negative for failure.
using QORStatus = std::int32_t;

inline constexpr QORStatus QOR_OK = 0;
inline constexpr QORStatus QOR_FAILED = static_cast<QORStatus>(0x80004005U);
inline constexpr QORStatus QOR_NO_INTERFACE = static_cast<QORStatus>(0x80004002U);
