#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// A concrete activity of a process plan. Asked for by cast alone: it tells steps from logical nodes.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPActivity : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPActivity"); }
};

inline constexpr QORInterfaceID IID_QORISPPActivity = QORISPPActivity::InterfaceID();
using QORISPPActivity_var = QORVar<QORISPPActivity>;

template <class Impl>
using QORISPPActivityTie = QORTie<QORISPPActivity, Impl>;
