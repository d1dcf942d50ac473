#pragma once

#include "QORPlatform/dialog/QORDlgWindow.h"

/// A window that a dialog is built in.
class QOR_EXPORT QORDlgDialog : public QORDlgWindow {
public:
    QORDlgDialog(QORDialog* iParent, const QORString& iName);
    ~QORDlgDialog() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};
