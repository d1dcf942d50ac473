#include "VXMBomInfrastructure/nodes/VXMStationMemo.h"

#include "QORPlatform/framework/QORModelIdentificator.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"

#include <vector>

namespace {

bool IsStation(const QORISPPAbstractActivity_var& iActivity) {
    static const QORUnicodeString station("BIWActivityStation");
    const QORISpecObject_var typed(iActivity);
    return typed && typed->IsOfType(station) == 1;
}

} // namespace

bool VXMStationMemo::IsInStation(QORISPPAbstractActivity_var iActivity) {
    std::vector<int> climbed;
    bool found = false;
    while (iActivity && !found) {
        const int id = QORModelIdentificator(iActivity->GetImpl(0)).GetIntId();
        // Entered as outside at first: parents that come round in a circle then end the climb as a top would.
        const auto [place, isNew] = _answers.emplace(id, false);
        if (!isNew) {
            found = place->second;
            break;
        }
        climbed.push_back(id);
        found = IsStation(iActivity);
        if (!found) {
            iActivity = iActivity->GetParent();
        }
    }
    if (found) {
        for (const int id : climbed) {
            _answers[id] = true;
        }
    }
    return found;
}
