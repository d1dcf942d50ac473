#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// Answered by what can be drawn anew.
class QORIRedrawEvent : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORIRedrawEvent"); }

    /// What is seen may be wrong by now: make it anew before it is drawn next.
    virtual void Redraw() = 0;
};

inline constexpr QORInterfaceID IID_QORIRedrawEvent = QORIRedrawEvent::InterfaceID();
using QORIRedrawEvent_var = QORVar<QORIRedrawEvent>;

template <class Impl>
class QORIRedrawEventTie : public QORTie<QORIRedrawEvent, Impl> {
public:
    using QORTie<QORIRedrawEvent, Impl>::QORTie;

    void Redraw() override { this->Target()->Redraw(); }
};
