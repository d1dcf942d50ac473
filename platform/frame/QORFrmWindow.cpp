#include "QORPlatform/frame/QORFrmWindow.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORFrmWindow::ClassMeta();

QORFrmWindowToolkit* windowToolkit = nullptr;

} // namespace

QORFrmWindow::QORFrmWindow(const QORString& iName, QORFrmEditor* iEditor)
    : QORDlgDialog(nullptr, iName), _baseName(iName), _editor(iEditor) {
    if (windowToolkit) {
        _peer = windowToolkit->MakePeer(*this);
    }
    if (_peer || !windowToolkit) {
        _viewerFrame = new QORDlgFrame(this, "ViewerFrame");
    }
}

QORFrmWindow::~QORFrmWindow() {
    // Children of the window's peer stand in it: they go before it does.
    _viewerFrame = nullptr;
    EndChildren();
}

QORMetaClass* QORFrmWindow::ClassMeta() {
    static auto* const meta =
        new QORMetaClass("QORFrmWindow", Implementation, QORDlgDialog::ClassMeta(), "QORNull", "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QORFrmWindow::GetMetaObject() const {
    return ClassMeta();
}

void QORFrmWindow::SetToolkit(QORFrmWindowToolkit* iToolkit) {
    windowToolkit = iToolkit;
}

void QORFrmWindow::SetViewerSelectable(QORViewer* iViewer) {
    _selectableViewer = QORWatch<QORViewer>(iViewer);
    if (_peer) {
        _peer->SelectableViewerChanged();
    }
}

void QORFrmWindow::SetBaseName(const QORUnicodeString& iTitle) {
    if (_baseName == iTitle) {
        return;
    }
    _baseName = iTitle;
    if (_peer) {
        _peer->TitleChanged();
    }
}

void QORFrmWindow::LayoutChanged() {
    if (_peer) {
        _peer->LayoutChanged();
    }
}
