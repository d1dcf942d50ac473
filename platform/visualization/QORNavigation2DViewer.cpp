#include "QORPlatform/visualization/QORNavigation2DViewer.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORNavigation2DViewer::ClassMeta();

} // namespace

QORNavigation2DViewer::QORNavigation2DViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth,
                                             int iHeight, int iOptions)
    : QORViewer(iParent, iName, iStyle, iWidth, iHeight, iOptions) {
    MakePeer();
}

QORNavigation2DViewer::~QORNavigation2DViewer() = default;

QORMetaClass* QORNavigation2DViewer::ClassMeta() {
    static auto* const meta = new QORMetaClass("QORNavigation2DViewer", Implementation, QORViewer::ClassMeta(),
                                               "QORNull", "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QORNavigation2DViewer::GetMetaObject() const {
    return ClassMeta();
}
