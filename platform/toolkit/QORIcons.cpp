#include "QORPlatform/toolkit/QORIcons.h"

#include <fstream>
#include <iterator>

namespace {

QORIconResource* currentResource = nullptr;

} // namespace

QORIconResource::~QORIconResource() = default;

QORIconResource* QORIconResource::GetCurrent() {
    return currentResource;
}

void QORIconResource::SetCurrent(QORIconResource* iResource) {
    currentResource = iResource;
}

QORIconFolder::~QORIconFolder() = default;

std::string QORIconFolder::GetDrawing(const std::string& iName) {
    if (iName.empty() || iName.find('/') != std::string::npos) {
        return {};
    }
    std::ifstream file(_path + "/" + iName + ".svg", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
