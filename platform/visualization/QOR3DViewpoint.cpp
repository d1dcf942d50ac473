#include "QORPlatform/visualization/QOR3DViewpoint.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QOR3DViewpoint::ClassMeta();

} // namespace

QOR3DViewpoint::QOR3DViewpoint() = default;

QOR3DViewpoint::~QOR3DViewpoint() = default;

QORMetaClass* QOR3DViewpoint::ClassMeta() {
    static auto* const meta = new QORMetaClass("QOR3DViewpoint", Implementation, QORViewpoint::ClassMeta(), "QORNull",
                                               "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QOR3DViewpoint::GetMetaObject() const {
    return ClassMeta();
}
