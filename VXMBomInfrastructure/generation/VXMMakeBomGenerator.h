#pragma once

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include <memory>

/// A new generator for the bill under iRoot: that of processes where iRoot answers QORISPPActivity, else that of
/// resources where it answers QORIProduct. Null for any other object and for null: there is no bill under it.
VXM_EXPORT std::unique_ptr<VXMBomGenerator> VXMMakeBomGenerator(const QORBaseUnknown_var& iRoot);
