#include "VXMBomInfrastructure/process/VXMActivityLinks.h"

#include "VXMBomInfrastructure/model/QORISPPChildManagement.h"

namespace {

const QORUnicodeString& LinkType() {
    static const QORUnicodeString type("Activity");
    return type;
}

} // namespace

namespace VXMActivityLinks {

std::unique_ptr<QORListValQORBaseUnknown_var> Children(const QORBaseUnknown_var& iActivity) {
    const QORISPPChildManagement_var management(iActivity);
    return std::unique_ptr<QORListValQORBaseUnknown_var>(management ? management->GetChildren(QORUnicodeString())
                                                                    : nullptr);
}

QORListValQORBaseUnknown_var Successors(const QORISPPFlowMgt_var& iFlow) {
    return iFlow->GetSuccessors(LinkType());
}

std::optional<QORBaseUnknown_var> FirstPredecessor(const QORISPPFlowMgt_var& iFlow) {
    const QORListValQORBaseUnknown_var predecessors = iFlow->GetPredecessors(LinkType());
    return predecessors.Size() == 0 ? std::nullopt : std::optional(predecessors[1]);
}

bool HasLinks(const QORISPPFlowMgt_var& iFlow) {
    // Each list is gone before the next one is asked for.
    const bool hasPredecessors = iFlow->GetPredecessors(LinkType()).Size() != 0;
    return hasPredecessors || iFlow->GetSuccessors(LinkType()).Size() != 0;
}

} // namespace VXMActivityLinks
