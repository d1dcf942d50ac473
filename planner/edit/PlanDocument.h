#pragma once

#include "planner/model/Plan.h"

#include "QORPlatform/frame/QORInit.h"
#include "QORPlatform/framework/QORObjectCounts.h"

#include <memory>
#include <utility>

namespace planner {

/// A plan as a document of the platform, of class "QORProcess". Answers QORInit, whose container of processes has one
/// entry: the plan's root activity.
class PlanDocument final : public QORBaseUnknown, private QORCounted<PlanDocument> {
public:
    static constexpr std::string_view kCountName = "planner::PlanDocument";

    /// Takes the plan over. It has a process, as every plan that was read does, and its objects are numbered.
    explicit PlanDocument(std::unique_ptr<Plan> plan);
    ~PlanDocument() override;

    Plan& plan() { return *plan_; }

    /// Begins to edit the plan; gives whether nobody else does. Every true is followed by one endEditing.
    bool takeForEditing() { return !std::exchange(isEdited_, true); }
    void endEditing() { isEdited_ = false; }

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;

    // Answer of QORInit. The container keeps the document.
    QORBaseUnknown* GetRootContainer(const char* iInterface);

private:
    std::unique_ptr<Plan> plan_;
    bool isEdited_ = false;
    QORInitTie<PlanDocument> init_{this};
};

} // namespace planner
