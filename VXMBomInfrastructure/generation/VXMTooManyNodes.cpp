#include "VXMBomInfrastructure/generation/VXMTooManyNodes.h"

VXMTooManyNodes::VXMTooManyNodes(const std::string& iText) : std::runtime_error(iText) {}

VXMTooManyNodes::~VXMTooManyNodes() = default;
