#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// A record of one output of an activity.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPProductIO : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPProductIO"); }

    /// The product that the record carries, may be null.
    virtual QORBaseUnknown_var GetProduct() = 0;
};

inline constexpr QORInterfaceID IID_QORISPPProductIO = QORISPPProductIO::InterfaceID();
using QORISPPProductIO_var = QORVar<QORISPPProductIO>;

template <class Impl>
class QORISPPProductIOTie : public QORTie<QORISPPProductIO, Impl> {
public:
    using QORTie<QORISPPProductIO, Impl>::QORTie;

    QORBaseUnknown_var GetProduct() override { return this->Target()->GetProduct(); }
};
