#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// Answered by a document: the way into its content.
class QORInit : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORInit"); }

    /// The document's root container that answers the interface of that name, with a reference for the caller; null
    /// when it has none.
    virtual QORBaseUnknown* GetRootContainer(const char* iInterface) = 0;
};

inline constexpr QORInterfaceID IID_QORInit = QORInit::InterfaceID();
using QORInit_var = QORVar<QORInit>;

template <class Impl>
class QORInitTie : public QORTie<QORInit, Impl> {
public:
    using QORTie<QORInit, Impl>::QORTie;

    QORBaseUnknown* GetRootContainer(const char* iInterface) override {
        return this->Target()->GetRootContainer(iInterface);
    }
};
