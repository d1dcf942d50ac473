#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// What a resource does: its activities, and whatever else the behaviour object answers.
/// What holds for every operation of a model stands in VXMModel.h.
class VXMIResourceBehavior : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("VXMIResourceBehavior"); }

    /// The activities of the behaviour, a new list that the caller deletes. Null sends an analysis on to the child
    /// products of the resource, an empty list doesn't. iReserved is always null.
    virtual QORListValQORBaseUnknown_var* GetActivities(void* iReserved) = 0;
};

inline constexpr QORInterfaceID IID_VXMIResourceBehavior = VXMIResourceBehavior::InterfaceID();
using VXMIResourceBehavior_var = QORVar<VXMIResourceBehavior>;

template <class Impl>
class VXMIResourceBehaviorTie : public QORTie<VXMIResourceBehavior, Impl> {
public:
    using QORTie<VXMIResourceBehavior, Impl>::QORTie;

    QORListValQORBaseUnknown_var* GetActivities(void* iReserved) override {
        return this->Target()->GetActivities(iReserved);
    }
};
