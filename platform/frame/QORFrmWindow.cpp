#include "QORPlatform/frame/QORFrmWindow.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/framework/QORMetaClass.h"

namespace {

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
    return QORRegisterClass<QORFrmWindow>("QORFrmWindow", kQORPlatform, &QORDlgDialog::ClassMeta);
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

void QORFrmWindow::Complete() {
    if (std::exchange(_isComplete, true)) {
        return;
    }
    if (_peer) {
        _peer->Completed();
    }
    if (_isToBeShown) {
        TellShown();
    }
}

void QORFrmWindow::SetShown(bool iShown) {
    if (std::exchange(_isToBeShown, iShown) != iShown && _isComplete) {
        TellShown();
    }
}

void QORFrmWindow::TellShown() {
    if (!_peer) {
        return;
    }
    if (_isToBeShown) {
        _peer->Shown();
    } else {
        _peer->Hidden();
    }
}

void QORFrmWindow::Raise() {
    if (!_isComplete || IsClosed()) {
        return;
    }
    SetShown(true);
    if (_peer) {
        _peer->Raised();
    }
    ReportActivate();
}

void QORFrmWindow::ReportActivate() {
    if (GetEditor()) {
        QORFrmEditor::SetCurrentEditor(GetEditor());
    }
}

bool QORFrmWindow::ReportClose() {
    // Whoever is asked may run an event loop: the window stays until this call is over.
    const QORVar<QORFrmWindow> self(this);
    const QORHandling handling(this);
    if (const auto guard = _closeGuard; !IsClosed() && guard && !guard(*this)) {
        return false;
    }
    _isClosed = true;
    RequestDelayedDestruction();
    return true;
}

void QORFrmWindow::LeaveParent() {
    QORDlgDialog::LeaveParent();
    _isClosed = true;
    if (_peer && GetReferenceCount() > 1) {
        _peer->FrameEnded();
    }
}
