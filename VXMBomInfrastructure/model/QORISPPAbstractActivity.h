#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

class QORISPPAbstractActivity;
using QORISPPAbstractActivity_var = QORVar<QORISPPAbstractActivity>;

/// A node of the process plan, be it an activity or a logical node.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPAbstractActivity : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPAbstractActivity"); }

    /// Name of the activity as a person reads it.
    virtual QORUnicodeString GetName() = 0;

    /// The activity above, a null handle when there is none.
    virtual QORISPPAbstractActivity_var GetParent() = 0;

    /// Fills oType with the name of the activity's type. The result isn't looked at.
    virtual QORStatus GetType(QORUnicodeString& oType) = 0;
};

inline constexpr QORInterfaceID IID_QORISPPAbstractActivity = QORISPPAbstractActivity::InterfaceID();

template <class Impl>
class QORISPPAbstractActivityTie : public QORTie<QORISPPAbstractActivity, Impl> {
public:
    using QORTie<QORISPPAbstractActivity, Impl>::QORTie;

    QORUnicodeString GetName() override { return this->Target()->GetName(); }
    QORISPPAbstractActivity_var GetParent() override { return this->Target()->GetParent(); }
    QORStatus GetType(QORUnicodeString& oType) override { return this->Target()->GetType(oType); }
};
