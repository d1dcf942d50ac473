#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// An occurrence in a product structure.
/// What holds for every operation of a model stands in VXMModel.h.
class QORIProduct : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORIProduct"); }

    /// The direct child occurrences that answer the interface named ("QORIProduct"), a new list that the caller
    /// deletes, or null.
    virtual QORListValQORBaseUnknown_var* GetChildren(const char* iInterface) = 0;

    /// Name of the product that this is an occurrence of.
    virtual QORUnicodeString GetProductName() = 0;

    /// Fills oName with the name of this occurrence. The result isn't looked at.
    virtual QORStatus GetInstanceName(QORUnicodeString& oName) = 0;
};

inline constexpr QORInterfaceID IID_QORIProduct = QORIProduct::InterfaceID();
using QORIProduct_var = QORVar<QORIProduct>;

template <class Impl>
class QORIProductTie : public QORTie<QORIProduct, Impl> {
public:
    using QORTie<QORIProduct, Impl>::QORTie;

    QORListValQORBaseUnknown_var* GetChildren(const char* iInterface) override {
        return this->Target()->GetChildren(iInterface);
    }
    QORUnicodeString GetProductName() override { return this->Target()->GetProductName(); }
    QORStatus GetInstanceName(QORUnicodeString& oName) override { return this->Target()->GetInstanceName(oName); }
};
