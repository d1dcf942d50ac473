#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "VXMBomInfrastructure/model/VXMIResourceBehavior.h"

/// A resource that has a behaviour.
/// What holds for every operation of a model stands in VXMModel.h.
class VXMIResourceBehaviorManager : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("VXMIResourceBehaviorManager"); }

    /// Fills oBehavior and gives QOR_OK, or fails and leaves it alone.
    virtual QORStatus GetBehavior(VXMIResourceBehavior_var& oBehavior) = 0;
};

inline constexpr QORInterfaceID IID_VXMIResourceBehaviorManager = VXMIResourceBehaviorManager::InterfaceID();
using VXMIResourceBehaviorManager_var = QORVar<VXMIResourceBehaviorManager>;

template <class Impl>
class VXMIResourceBehaviorManagerTie : public QORTie<VXMIResourceBehaviorManager, Impl> {
public:
    using QORTie<VXMIResourceBehaviorManager, Impl>::QORTie;

    QORStatus GetBehavior(VXMIResourceBehavior_var& oBehavior) override {
        return this->Target()->GetBehavior(oBehavior);
    }
};
