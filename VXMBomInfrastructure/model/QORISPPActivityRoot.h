#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// The activity at the top of a process plan. Asked for by cast alone: it tells the root from other activities.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPActivityRoot : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPActivityRoot"); }
};

inline constexpr QORInterfaceID IID_QORISPPActivityRoot = QORISPPActivityRoot::InterfaceID();
using QORISPPActivityRoot_var = QORVar<QORISPPActivityRoot>;

template <class Impl>
using QORISPPActivityRootTie = QORTie<QORISPPActivityRoot, Impl>;
