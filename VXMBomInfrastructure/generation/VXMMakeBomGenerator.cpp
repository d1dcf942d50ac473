#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/QORISPPActivity.h"
#include "VXMBomInfrastructure/process/VXMProcessBomGenerator.h"
#include "VXMBomInfrastructure/resource/VXMResourceBomGenerator.h"

std::unique_ptr<VXMBomGenerator> VXMMakeBomGenerator(const QORBaseUnknown_var& iRoot) {
    if (QORISPPActivity_var(iRoot)) {
        return std::make_unique<VXMProcessBomGenerator>(iRoot);
    }
    if (QORIProduct_var(iRoot)) {
        return std::make_unique<VXMResourceBomGenerator>(iRoot);
    }
    return nullptr;
}
