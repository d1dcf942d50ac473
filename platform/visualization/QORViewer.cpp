#include "QORPlatform/visualization/QORViewer.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/visualization/QORViewpoint.h"
#include "QORPlatform/visualization/QORVisManager.h"

#include <algorithm>

namespace {

QORViewerToolkit* viewerToolkit = nullptr;

} // namespace

QORViewer::QORViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth, int iHeight, int iOptions)
    : QORDialog(iParent, iName), _style(iStyle), _options(iOptions), _width(static_cast<float>(iWidth)),
      _height(static_cast<float>(iHeight)) {}

QORViewer::~QORViewer() {
    // The peer goes first: nobody paints what is being taken apart.
    _peer.reset();
    for (const Place& place : _viewpoints) {
        QORVisManager::GetVisManager()->ForgetViewpoint(*place.viewpoint.Get());
        place.viewpoint->_viewer = nullptr;
    }
}

QORMetaClass* QORViewer::ClassMeta() {
    return QORRegisterClass<QORViewer>("QORViewer", kQORPlatform, &QORDialog::ClassMeta);
}

QORMetaClass* QORViewer::GetMetaObject() const {
    return ClassMeta();
}

QORStatus QORViewer::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    const QORStatus own = QORAnswer(iInterface, oInterface, _redrawEvent);
    return own < 0 ? QORDialog::QueryInterface(iInterface, oInterface) : own;
}

void QORViewer::SetToolkit(QORViewerToolkit* iToolkit) {
    viewerToolkit = iToolkit;
}

bool QORViewer::MakePeer() {
    if (viewerToolkit) {
        _peer = viewerToolkit->MakePeer(*this);
    }
    return _peer || !viewerToolkit;
}

void QORViewer::MakeMain3DViewpoint() {
    const auto viewpoint = QORVar<QORViewpoint>::Adopt(new QOR3DViewpoint());
    _main3DViewpoint = viewpoint.Get();
    viewpoint->AddRef();
    AddViewpoint(viewpoint.Get(), kQORPlacementBehind);
}

QORStatus QORViewer::AddViewpoint(QORViewpoint* iViewpoint, int iPlacement) {
    if (!iViewpoint || iViewpoint->_viewer) {
        return QOR_FAILED;
    }
    _viewpoints.push_back({QORVar<QORViewpoint>::Adopt(iViewpoint), iPlacement, nullptr});
    iViewpoint->_viewer = this;
    if (_peer) {
        _peer->ViewpointAdded(*iViewpoint);
    }
    return QOR_OK;
}

QORStatus QORViewer::RemoveViewpoint(QORViewpoint* iViewpoint) {
    const Place* const place = FindPlace(iViewpoint);
    if (!iViewpoint || !place || iViewpoint == _main3DViewpoint) {
        return QOR_FAILED;
    }
    const Place removed = *place;
    QORVisManager::GetVisManager()->ForgetViewpoint(*iViewpoint);
    _viewpoints.erase(_viewpoints.begin() + (place - _viewpoints.data()));
    iViewpoint->_viewer = nullptr;
    if (_peer) {
        _peer->ViewpointRemoved(*iViewpoint);
    }
    return QOR_OK;
}

QORStatus QORViewer::SetViewpointEditor(QORViewpoint* iViewpoint, QORViewpointEditor* iEditor) {
    const auto place = std::find_if(_viewpoints.begin(), _viewpoints.end(),
                                    [&](const Place& iPlace) { return iPlace.viewpoint.Get() == iViewpoint; });
    if (!iViewpoint || !iEditor || place == _viewpoints.end()) {
        return QOR_FAILED;
    }
    place->editor = QORVar<QORViewpointEditor>::Adopt(iEditor);
    if (_peer) {
        _peer->EditorChanged(*iViewpoint);
    }
    return QOR_OK;
}

QORViewpoint* QORViewer::GetViewpoint(int iPosition) const {
    return iPosition >= 1 && iPosition <= GetViewpointCount() ? _viewpoints[iPosition - 1].viewpoint.Get() : nullptr;
}

const QORViewer::Place* QORViewer::FindPlace(const QORViewpoint* iViewpoint) const {
    for (const Place& place : _viewpoints) {
        if (place.viewpoint.Get() == iViewpoint) {
            return &place;
        }
    }
    return nullptr;
}

int QORViewer::GetPlacement(const QORViewpoint* iViewpoint) const {
    const Place* const place = FindPlace(iViewpoint);
    return place ? place->placement : kQORPlacementBehind;
}

QORViewpointEditor* QORViewer::GetViewpointEditor(const QORViewpoint* iViewpoint) const {
    const Place* const place = FindPlace(iViewpoint);
    return place ? place->editor.Get() : nullptr;
}

void QORViewer::GetGraphicSize(float& oWidth, float& oHeight) const {
    oWidth = _width;
    oHeight = _height;
}

void QORViewer::SetGraphicSize(float iWidth, float iHeight) {
    _width = iWidth;
    _height = iHeight;
}

void QORViewer::Draw() {
    if (_peer) {
        _peer->Draw();
    }
}

void QORViewer::Redraw() {
    if (!_peer) {
        return;
    }
    const QORVar<QORViewer> self(this);
    for (const Place& place : std::vector(_viewpoints)) {
        QORVisManager::GetVisManager()->CheckChanges(*place.viewpoint.Get());
    }
    _peer->Redraw();
}

void QORViewer::FitAll(QORViewpoint& iViewpoint) {
    if (_peer && FindPlace(&iViewpoint)) {
        _peer->FitAll(iViewpoint);
    }
}

void QORViewer::ReportHover(QORViewpoint& iViewpoint, QORBaseUnknown* iObject) {
    const QORHandling handling(this);
    if (const QORVar<QORXSO> hovered(QORVisManager::GetVisManager()->GetHSO(iViewpoint)); hovered) {
        hovered->SetContent({iObject});
    }
}

void QORViewer::ReportPick(QORViewpoint& iViewpoint, QORBaseUnknown* iObject, bool iExtend) {
    const QORHandling handling(this);
    const QORVar<QORXSO> picked(QORVisManager::GetVisManager()->GetPSO(iViewpoint));
    if (!picked) {
        return;
    }
    if (!iExtend) {
        picked->SetContent({iObject});
        return;
    }
    const auto path = QORVar<QORPathElement>::Adopt(new QORPathElement(iObject));
    if (picked->AddElement(path.Get()) < 0) {
        picked->RemoveElement(path.Get());
    }
}

void QORViewer::ReportPicks(QORViewpoint& iViewpoint, const std::vector<QORBaseUnknown*>& iObjects, bool iExtend) {
    const QORHandling handling(this);
    const QORVar<QORXSO> picked(QORVisManager::GetVisManager()->GetPSO(iViewpoint));
    if (!picked) {
        return;
    }
    if (iExtend) {
        picked->AddElements(iObjects);
    } else {
        picked->SetContent(iObjects);
    }
}

QORNavigation2DViewer::QORNavigation2DViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth,
                                             int iHeight, int iOptions)
    : QORViewer(iParent, iName, iStyle, iWidth, iHeight, iOptions) {
    MakePeer();
}

QORNavigation2DViewer::~QORNavigation2DViewer() = default;

QORMetaClass* QORNavigation2DViewer::ClassMeta() {
    return QORRegisterClass<QORNavigation2DViewer>("QORNavigation2DViewer", kQORPlatform, &QORViewer::ClassMeta);
}

QORMetaClass* QORNavigation2DViewer::GetMetaObject() const {
    return ClassMeta();
}

QORNavigation3DViewer::QORNavigation3DViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth,
                                             int iHeight, int iOptions)
    : QORViewer(iParent, iName, iStyle, iWidth, iHeight, iOptions) {
    if (MakePeer()) {
        MakeMain3DViewpoint();
    }
}

QORNavigation3DViewer::~QORNavigation3DViewer() = default;

QORMetaClass* QORNavigation3DViewer::ClassMeta() {
    return QORRegisterClass<QORNavigation3DViewer>("QORNavigation3DViewer", kQORPlatform, &QORViewer::ClassMeta);
}

QORMetaClass* QORNavigation3DViewer::GetMetaObject() const {
    return ClassMeta();
}
