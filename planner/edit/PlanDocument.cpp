#include "planner/edit/PlanDocument.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "VXMBomInfrastructure/model/QORISPPProcessContainer.h"

#include <string_view>

namespace planner {

namespace {

class ProcessContainer final : public QORBaseUnknown {
public:
    explicit ProcessContainer(PlanDocument& document) : document_(&document) {}

    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override {
        const QORStatus status = QORAnswer(iInterface, oInterface, processes_);
        return status < 0 ? QORBaseUnknown::QueryInterface(iInterface, oInterface) : status;
    }

    // Answer of QORISPPProcessContainer.
    QORListValQORBaseUnknown_var* GetAllProcess() const {
        auto handles = std::make_unique<QORListValQORBaseUnknown_var>();
        handles->Append(QORBaseUnknown_var(document_->plan().process()));
        return handles.release();
    }

private:
    QORVar<PlanDocument> document_;
    QORISPPProcessContainerTie<ProcessContainer> processes_{this};
};

} // namespace

PlanDocument::PlanDocument(std::unique_ptr<Plan> plan) : plan_(std::move(plan)) {}

PlanDocument::~PlanDocument() = default;

QORMetaClass* PlanDocument::ClassMeta() {
    return QORRegisterClass<PlanDocument>("QORProcess", "planner");
}

QORMetaClass* PlanDocument::GetMetaObject() const {
    return ClassMeta();
}

QORStatus PlanDocument::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    const QORStatus status = QORAnswer(iInterface, oInterface, init_);
    return status < 0 ? QORBaseUnknown::QueryInterface(iInterface, oInterface) : status;
}

QORBaseUnknown* PlanDocument::GetRootContainer(const char* iInterface) {
    const bool isProcesses = iInterface && std::string_view(iInterface) == QORISPPProcessContainer::ClassName();
    return isProcesses ? new ProcessContainer(*this) : nullptr;
}

} // namespace planner
