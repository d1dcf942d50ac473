#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

class QOREventSubscriber;

/// Where changes of a plan are told.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPActivityModificationEvents : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPActivityModificationEvents"); }

    /// The object that publishes the changes, may be null. No reference passes to the caller.
    virtual QOREventSubscriber* GetEventPublisher() = 0;
};

inline constexpr QORInterfaceID IID_QORISPPActivityModificationEvents =
    QORISPPActivityModificationEvents::InterfaceID();
using QORISPPActivityModificationEvents_var = QORVar<QORISPPActivityModificationEvents>;

template <class Impl>
class QORISPPActivityModificationEventsTie : public QORTie<QORISPPActivityModificationEvents, Impl> {
public:
    using QORTie<QORISPPActivityModificationEvents, Impl>::QORTie;

    QOREventSubscriber* GetEventPublisher() override { return this->Target()->GetEventPublisher(); }
};
