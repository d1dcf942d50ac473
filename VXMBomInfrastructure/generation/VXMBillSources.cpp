#include "VXMBomInfrastructure/generation/VXMBillSources.h"

#include "VXMBomInfrastructure/generation/VXMFlowLists.h"
#include "VXMBomInfrastructure/generation/VXMStructure.h"

#include <vector>

VXMBillSources::VXMBillSources(VXMFabFlowNode* iEnd) {
    std::vector<VXMFabFlowNode*> open{iEnd};
    while (!open.empty()) {
        VXMFabFlowNode* const node = open.back();
        open.pop_back();
        if (!node || !_nodes.insert(node).second) {
            continue;
        }
        _steps.insert(node->GetActivity().Impl());
        for (int position = node->GetNumberOfPredecessors(); position > 0; --position) {
            open.push_back(node->GetPredecessor(position));
        }
    }
}

bool VXMBillSources::HasProduct(const QORBaseUnknown* iProduct) {
    if (!_knowsProducts) {
        ReadProducts();
        _knowsProducts = true;
    }
    return _products.contains(iProduct);
}

void VXMBillSources::ReadProducts() {
    std::vector<QORBaseUnknown_var> open;
    const auto read = [this, &open](const QORBaseUnknown_var& iProduct) {
        if (_products.insert(iProduct.Impl()).second) {
            open.push_back(iProduct);
        }
    };
    for (const VXMFabFlowNode* node : _nodes) {
        for (const VXMFlowList& list : kVXMFlowLists) {
            for (int position = (node->*list.count)(); position > 0; --position) {
                read((node->*list.entry)(position));
            }
        }
    }
    while (!open.empty()) {
        const QORBaseUnknown_var product = open.back();
        open.pop_back();
        if (const auto contents = VXMStructure::ContentsOf(product, VXMStructure::Kind::AssembliesAndProducts)) {
            for (const QORBaseUnknown_var& part : *contents) {
                read(part);
            }
        }
    }
}
