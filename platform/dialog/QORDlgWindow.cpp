#include "QORPlatform/dialog/QORDlgWindow.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORDlgWindow::ClassMeta();

} // namespace

QORDlgWindow::QORDlgWindow(QORDialog* iParent, const QORString& iName)
    : QORDialog(iParent, iName), _windSizeNotification(QORVar<QORNotification>::Adopt(new QORNotification())) {}

QORDlgWindow::~QORDlgWindow() = default;

QORMetaClass* QORDlgWindow::ClassMeta() {
    static auto* const meta =
        new QORMetaClass("QORDlgWindow", Implementation, QORDialog::ClassMeta(), "QORNull", "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QORDlgWindow::GetMetaObject() const {
    return ClassMeta();
}
