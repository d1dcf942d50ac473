#pragma once

#include "QORPlatform/dialog/QORDialog.h"
#include "QORPlatform/framework/QORVar.h"

/// A dialog with a window of its own, which tells when its size changes.
class QOR_EXPORT QORDlgWindow : public QORDialog {
public:
    ~QORDlgWindow() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// The notification that this window sends when its place or size has changed: always the same object, which
    /// belongs to the window.
    QORNotification* GetWindSizeNotification() const { return _windSizeNotification.Get(); }

protected:
    QORDlgWindow(QORDialog* iParent, const QORString& iName);

    void RectChanged() override { SendNotification(GetWindSizeNotification()); }

private:
    QORVar<QORNotification> _windSizeNotification;
};

/// A window that a dialog is built in.
class QOR_EXPORT QORDlgDialog : public QORDlgWindow {
public:
    QORDlgDialog(QORDialog* iParent, const QORString& iName);
    ~QORDlgDialog() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};
