#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// A control-flow link as an object of the plan. Asked for by cast alone.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPControlFlow : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPControlFlow"); }
};

inline constexpr QORInterfaceID IID_QORISPPControlFlow = QORISPPControlFlow::InterfaceID();
using QORISPPControlFlow_var = QORVar<QORISPPControlFlow>;

template <class Impl>
using QORISPPControlFlowTie = QORTie<QORISPPControlFlow, Impl>;
