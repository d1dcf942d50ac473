#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// The container of a document's processes.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPProcessContainer : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPProcessContainer"); }

    /// Name of this interface, by which a document is asked for its container.
    static const char* ClassName() { return "QORISPPProcessContainer"; }

    /// The roots of all processes, a new list that the caller deletes; may be null or empty.
    virtual QORListValQORBaseUnknown_var* GetAllProcess() = 0;
};

inline constexpr QORInterfaceID IID_QORISPPProcessContainer = QORISPPProcessContainer::InterfaceID();
using QORISPPProcessContainer_var = QORVar<QORISPPProcessContainer>;

template <class Impl>
class QORISPPProcessContainerTie : public QORTie<QORISPPProcessContainer, Impl> {
public:
    using QORTie<QORISPPProcessContainer, Impl>::QORTie;

    QORListValQORBaseUnknown_var* GetAllProcess() override { return this->Target()->GetAllProcess(); }
};
