#include "VXMBomInfrastructure/index/VXMListings.h"

#include "VXMBomInfrastructure/generation/VXMFlowLists.h"
#include "VXMBomInfrastructure/index/VXMByNumber.h"
#include "VXMBomInfrastructure/index/VXMStructures.h"

VXMListings::VXMListings(const VXMStepGraph& iGraph,
                         const std::function<bool(VXMFabFlowNode&, AssignmentType)>& iTakes) {
    VXMByNumber<int> items; // from 1
    const auto itemOf = [&](const QORBaseUnknown_var& iObject) {
        int& item = items[VXMStructures::IdentityOf(iObject)];
        if (item == 0) {
            _objects.push_back(iObject);
            item = static_cast<int>(_objects.size());
        }
        _areAmbiguous = _areAmbiguous || !VXMStructures::AreOne(_objects[item - 1], iObject);
        return item - 1;
    };
    for (int number = 0; number < iGraph.Size(); ++number) {
        _begin.push_back(static_cast<int>(_entries.size()));
        VXMFabFlowNode* const step = iGraph.StepOf(number);
        if (!step || !iGraph.IsFruitful(number)) {
            continue;
        }
        for (const VXMFlowList& list : kVXMFlowLists) {
            const int count = iTakes(*step, list.type) ? (step->*list.count)() : 0;
            for (int position = 1; position <= count; ++position) {
                _entries.push_back({itemOf((step->*list.entry)(position)), list.type});
            }
        }
    }
    _begin.push_back(static_cast<int>(_entries.size()));
}
