#include "QORPlatform/dialog/QORDialog.h"

#include "QORPlatform/framework/QORMetaClass.h"

#include <algorithm>
#include <utility>

QORDialog::QORDialog(QORDialog* iParent, const QORString& iName) : QORCommand(iName, iParent), _parent(iParent) {
    if (_parent) {
        _parent->_children.push_back(this);
    }
}

QORDialog::~QORDialog() {
    EndChildren();
    QORDialog::LeaveParent();
}

QORMetaClass* QORDialog::ClassMeta() {
    return QORRegisterClass<QORDialog>("QORDialog", kQORPlatform, &QORCommand::ClassMeta);
}

QORMetaClass* QORDialog::GetMetaObject() const {
    return ClassMeta();
}

void QORDialog::SetRectDimensions(const DRECT& iRect) {
    if (!(_rect == iRect)) {
        _rect = iRect;
        RectChanged();
    }
}

const char* QORDialog::GetResourceFilename(int iLevel) {
    return iLevel <= 0 ? "QORDialog" : nullptr;
}

void QORDialog::EndChildren() {
    while (!_children.empty()) {
        _children.back()->GiveUp();
    }
}

void QORDialog::LeaveParent() {
    if (!_parent) {
        return;
    }
    _parent->ChildLeaves(*this);
    auto& siblings = _parent->_children;
    // The last made leaves first as a rule.
    const auto place = std::find(siblings.rbegin(), siblings.rend(), this);
    siblings.erase(std::next(place).base());
    std::exchange(_parent, nullptr)->LayoutChanged();
}

void QORDialog::LayoutChanged() {
    if (_parent) {
        _parent->LayoutChanged();
    }
}
