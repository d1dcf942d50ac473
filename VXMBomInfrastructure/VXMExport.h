#pragma once

/// Marks the classes that leave the library; everything else stays hidden.
#define VXM_EXPORT __attribute__((visibility("default")))

/// Marks what an exported class keeps for itself, its state above all.
#define VXM_HIDDEN __attribute__((visibility("hidden")))
