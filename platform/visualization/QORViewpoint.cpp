#include "QORPlatform/visualization/QORViewpoint.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/visualization/QORViewer.h"
#include "QORPlatform/visualization/QORVisManager.h"

QORViewpoint::~QORViewpoint() {
    QORVisManager::GetVisManager()->ForgetViewpoint(*this);
}

QORMetaClass* QORViewpoint::ClassMeta() {
    return QORRegisterClass<QORViewpoint>("QORViewpoint", kQORPlatform);
}

QORMetaClass* QORViewpoint::GetMetaObject() const {
    return ClassMeta();
}

QOR2DViewpoint::QOR2DViewpoint() = default;

QOR2DViewpoint::~QOR2DViewpoint() = default;

QORMetaClass* QOR2DViewpoint::ClassMeta() {
    return QORRegisterClass<QOR2DViewpoint>("QOR2DViewpoint", kQORPlatform, &QORViewpoint::ClassMeta);
}

QORMetaClass* QOR2DViewpoint::GetMetaObject() const {
    return ClassMeta();
}

QOR3DViewpoint::QOR3DViewpoint() = default;

QOR3DViewpoint::~QOR3DViewpoint() = default;

QORMetaClass* QOR3DViewpoint::ClassMeta() {
    return QORRegisterClass<QOR3DViewpoint>("QOR3DViewpoint", kQORPlatform, &QORViewpoint::ClassMeta);
}

QORMetaClass* QOR3DViewpoint::GetMetaObject() const {
    return ClassMeta();
}

void QOR3DViewpoint::SetCamera(const QORCamera& iCamera) {
    _camera = iCamera;
    if (GetViewer() && GetViewer()->GetPeer()) {
        GetViewer()->GetPeer()->CameraChanged(*this);
    }
}
