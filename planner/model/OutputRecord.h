#pragma once

#include "planner/model/ModelObject.h"

#include "VXMBomInfrastructure/model/QORISPPProductIO.h"

namespace planner {

/// Record of one output of an activity. Made for the asking, and gone with the list that brought it.
class OutputRecord final : public QORBaseUnknown {
public:
    explicit OutputRecord(ModelObject& product) : product_(&product) {}

    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override {
        const QORStatus status = QORAnswer(iInterface, oInterface, record_);
        return status < 0 ? QORBaseUnknown::QueryInterface(iInterface, oInterface) : status;
    }

    // Answer of QORISPPProductIO.
    QORBaseUnknown_var GetProduct() const { return product_; }

private:
    QORBaseUnknown_var product_;
    QORISPPProductIOTie<OutputRecord> record_{this};
};

} // namespace planner
