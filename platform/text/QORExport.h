#pragma once

/// Marks what leaves the platform's shared object; everything else stays hidden.
#define QOR_EXPORT __attribute__((visibility("default")))
