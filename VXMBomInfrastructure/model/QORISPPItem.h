#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// An item that an activity or a resource can list: a product, an assembly, a fastener, a tool.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPItem : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPItem"); }

    /// Name of the item as a person reads it.
    virtual QORUnicodeString GetName() = 0;
};

inline constexpr QORInterfaceID IID_QORISPPItem = QORISPPItem::InterfaceID();
using QORISPPItem_var = QORVar<QORISPPItem>;

template <class Impl>
class QORISPPItemTie : public QORTie<QORISPPItem, Impl> {
public:
    using QORTie<QORISPPItem, Impl>::QORTie;

    QORUnicodeString GetName() override { return this->Target()->GetName(); }
};
