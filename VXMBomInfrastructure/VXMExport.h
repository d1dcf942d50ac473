#pragma once

/// Marks the classes that leave the library; everything else stays hidden.
#define VXM_EXPORT __attribute__((visibility("default")))
