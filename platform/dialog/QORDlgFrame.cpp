#include "QORPlatform/dialog/QORDlgFrame.h"

#include "QORPlatform/dialog/QORDialogObserver.h"
#include "QORPlatform/framework/QORMetaClass.h"

#include <algorithm>

QORDlgFrame::QORDlgFrame(QORDialog* iParent, const QORString& iName, int iStyle)
    : QORDialog(iParent, iName), _style(iStyle) {}

QORDlgFrame::~QORDlgFrame() {
    EndChildren();
}

QORMetaClass* QORDlgFrame::ClassMeta() {
    return QORRegisterClass<QORDlgFrame>("QORDlgFrame", kQORPlatform, &QORDialog::ClassMeta);
}

QORMetaClass* QORDlgFrame::GetMetaObject() const {
    return ClassMeta();
}

QORStatus QORDlgFrame::Attach4Sides(QORDialog* iChild) {
    if (!iChild || iChild->GetParent() != this || IsAttached(iChild)) {
        return QOR_FAILED;
    }
    _attached.push_back(iChild);
    QORDialogObserver::TellAll(QORDialogStep::Attached, *this, iChild);
    LayoutChanged();
    return QOR_OK;
}

QORStatus QORDlgFrame::ResetAttachment(QORDialog* iChild) {
    if (std::erase(_attached, iChild) == 0) {
        return QOR_FAILED;
    }
    QORDialogObserver::TellAll(QORDialogStep::Detached, *this, iChild);
    LayoutChanged();
    return QOR_OK;
}

bool QORDlgFrame::IsAttached(const QORDialog* iChild) const {
    return std::find(_attached.begin(), _attached.end(), iChild) != _attached.end();
}
