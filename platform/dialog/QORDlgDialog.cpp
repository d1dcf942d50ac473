#include "QORPlatform/dialog/QORDlgDialog.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORDlgDialog::ClassMeta();

} // namespace

QORDlgDialog::QORDlgDialog(QORDialog* iParent, const QORString& iName) : QORDlgWindow(iParent, iName) {}

QORDlgDialog::~QORDlgDialog() = default;

QORMetaClass* QORDlgDialog::ClassMeta() {
    static auto* const meta =
        new QORMetaClass("QORDlgDialog", Implementation, QORDlgWindow::ClassMeta(), "QORNull", "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QORDlgDialog::GetMetaObject() const {
    return ClassMeta();
}
