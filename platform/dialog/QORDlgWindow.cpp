#include "QORPlatform/dialog/QORDlgWindow.h"

#include "QORPlatform/framework/QORMetaClass.h"

QORDlgWindow::QORDlgWindow(QORDialog* iParent, const QORString& iName)
    : QORDialog(iParent, iName), _windSizeNotification(QORVar<QORNotification>::Adopt(new QORNotification())) {}

QORDlgWindow::~QORDlgWindow() = default;

QORMetaClass* QORDlgWindow::ClassMeta() {
    return QORRegisterClass<QORDlgWindow>("QORDlgWindow", kQORPlatform, &QORDialog::ClassMeta);
}

QORMetaClass* QORDlgWindow::GetMetaObject() const {
    return ClassMeta();
}

QORDlgDialog::QORDlgDialog(QORDialog* iParent, const QORString& iName) : QORDlgWindow(iParent, iName) {}

QORDlgDialog::~QORDlgDialog() = default;

QORMetaClass* QORDlgDialog::ClassMeta() {
    return QORRegisterClass<QORDlgDialog>("QORDlgDialog", kQORPlatform, &QORDlgWindow::ClassMeta);
}

QORMetaClass* QORDlgDialog::GetMetaObject() const {
    return ClassMeta();
}
