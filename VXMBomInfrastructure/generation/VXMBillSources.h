#pragma once

#include "QORPlatform/framework/QORVar.h"

#include <unordered_set>

class VXMFabFlowNode;

/// The objects whose lists the bill at the end of a flow is made from: the steps on the ways to that end, and the
/// products that their lists name, with all that these are made of. Other lists may change without changing the bill.
///
/// Objects go by their addresses and aren't held: one that ends and leaves its address to another makes that one a
/// source at worst.
class VXMBillSources {
public:
    /// Walks the flow graph backwards from iEnd, which may be null.
    explicit VXMBillSources(VXMFabFlowNode* iEnd);

    bool HasStep(const QORBaseUnknown* iStep) const { return _steps.contains(iStep); }

    /// Asks the model what the products are made of, when it is called for the first time.
    bool HasProduct(const QORBaseUnknown* iProduct);

private:
    void ReadProducts();

    std::unordered_set<VXMFabFlowNode*> _nodes;
    std::unordered_set<const QORBaseUnknown*> _steps;
    std::unordered_set<const QORBaseUnknown*> _products;
    bool _knowsProducts = false;
};
