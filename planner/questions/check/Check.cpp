#include "planner/questions/check/Check.h"

#include "planner/bill/MakeGenerator.h"
#include "planner/file/JsonText.h"
#include "planner/questions/check/CheckWork.h"

#include <algorithm>

namespace planner {

std::vector<Finding> checkPlan(Plan& plan, ModelObject& root) {
    const std::unique_ptr<VXMBomGenerator> generator = makeGenerator(&root);
    const DOM_Document document = generator->GetBom(0);
    return checkPlan(plan, root, *generator, readBill(document, generator->GetPreviewObjects()));
}

std::vector<Finding> checkPlan(Plan& plan, ModelObject& root, VXMBomGenerator& generator, const Bill& bill) {
    CheckWork work{plan, root, generator, bill, ReachedFlow(generator, root), {}};
    checkLoops(work);
    checkSteps(work);
    checkRemovals(work);
    checkFasteners(work);
    checkMentions(work);
    const auto placeOf = [](const Finding& finding) {
        return std::pair(finding.code, const_cast<ModelObject*>(finding.object)->GetIdentity());
    };
    std::stable_sort(work.findings.begin(), work.findings.end(),
                     [&](const Finding& left, const Finding& right) { return placeOf(left) < placeOf(right); });
    return std::move(work.findings);
}

std::string called(const ModelObject& object) {
    if (object.sort() == Sort::Behaviour && object.id().empty()) {
        return "the behaviour of " + called(*static_cast<const FlowObject&>(object).container());
    }
    return inQuotes(object.name()) + (object.hasOwnName() && !object.id().empty() && object.name() != object.id()
                                          ? " (" + object.id() + ")"
                                          : std::string());
}

std::string calledAll(const std::vector<const ModelObject*>& objects) {
    constexpr std::size_t kNamed = 4;
    const std::size_t named = objects.size() <= kNamed + 1 ? objects.size() : kNamed;
    std::string text;
    for (std::size_t i = 0; i < named; ++i) {
        const bool isLast = i + 1 == objects.size();
        text += (i == 0 ? "" : isLast ? " and " : ", ") + called(*objects[i]);
    }
    return named == objects.size() ? text : text + " and " + std::to_string(objects.size() - named) + " more";
}

} // namespace planner
