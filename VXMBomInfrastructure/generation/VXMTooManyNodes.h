#pragma once

#include "VXMBomInfrastructure/VXMExport.h"

#include <stdexcept>
#include <string>

/// Raised by a computation that would make more nodes than VXMBomGenerator::SetMaxNodes allows: steps that are reached
/// on many paths bring items whose nodes can't be thinned out, or would be traced, which is known before any is made;
/// or products are made of parts that multiply. The text tells how many, and names items and steps, UTF-8.
class VXM_EXPORT VXMTooManyNodes : public std::runtime_error {
public:
    explicit VXMTooManyNodes(const std::string& iText);
    ~VXMTooManyNodes() override;
};
