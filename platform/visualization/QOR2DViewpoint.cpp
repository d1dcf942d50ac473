#include "QORPlatform/visualization/QOR2DViewpoint.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QOR2DViewpoint::ClassMeta();

} // namespace

QOR2DViewpoint::QOR2DViewpoint() = default;

QOR2DViewpoint::~QOR2DViewpoint() = default;

QORMetaClass* QOR2DViewpoint::ClassMeta() {
    static auto* const meta = new QORMetaClass("QOR2DViewpoint", Implementation, QORViewpoint::ClassMeta(), "QORNull",
                                               "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QOR2DViewpoint::GetMetaObject() const {
    return ClassMeta();
}
