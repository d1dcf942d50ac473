#include "QORPlatform/visualization/QORNavigation3DViewer.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORNavigation3DViewer::ClassMeta();

} // namespace

QORNavigation3DViewer::QORNavigation3DViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth,
                                             int iHeight, int iOptions)
    : QORViewer(iParent, iName, iStyle, iWidth, iHeight, iOptions) {
    if (MakePeer()) {
        MakeMain3DViewpoint();
    }
}

QORNavigation3DViewer::~QORNavigation3DViewer() = default;

QORMetaClass* QORNavigation3DViewer::ClassMeta() {
    static auto* const meta = new QORMetaClass("QORNavigation3DViewer", Implementation, QORViewer::ClassMeta(),
                                               "QORNull", "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QORNavigation3DViewer::GetMetaObject() const {
    return ClassMeta();
}
