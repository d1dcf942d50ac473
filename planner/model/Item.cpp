#include "planner/model/Item.h"

#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

#include <algorithm>

namespace planner {

const Geometry& Item::geometry() const {
    static const Geometry none;
    return body_ ? body_->geometry : none;
}

Item::Body& Item::makeBody() {
    if (!body_) {
        body_ = std::make_unique<Body>(this);
    }
    return *body_;
}

void Item::setShape(std::optional<Shape> shape) {
    Body& body = makeBody();
    const bool wasVisible = body.geometry.shape || body.mayBeShown;
    body.mayBeShown = wasVisible && GetReferenceCount() > 1; // one is the plan's
    body.geometry.shape = std::move(shape);
}

QORStatus Item::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    const bool isVisible = body_ && (body_->geometry.shape || body_->mayBeShown);
    if (isVisible && QORAnswer(iInterface, oInterface, body_->visible) >= 0) {
        return QOR_OK;
    }
    const QORStatus status = QORAnswer(iInterface, oInterface, item_);
    return status < 0 ? ModelObject::QueryInterface(iInterface, oInterface) : status;
}

QORStatus Product::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    if (answersProduct() && QORAnswer(iInterface, oInterface, product_) >= 0) {
        return QOR_OK;
    }
    return Item::QueryInterface(iInterface, oInterface);
}

void Product::forgetNeighbours() {
    Item::forgetNeighbours();
    children.reset();
}

QORListValQORBaseUnknown_var* Product::GetChildren(const char* iInterface) const {
    return newHandlesAnswering(children, iInterface);
}

QORStatus Product::GetInstanceName(QORUnicodeString& oName) const {
    oName = platformText(name());
    return QOR_OK;
}

QORStatus Assembly::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    const QORStatus status = QORAnswer(iInterface, oInterface, assembly_);
    return status < 0 ? Product::QueryInterface(iInterface, oInterface) : status;
}

void Assembly::forgetNeighbours() {
    Product::forgetNeighbours();
    holds.reset();
}

QORStatus Assembly::GetAssignedProducts(QORListValQORBaseUnknown_var*& oProducts) const {
    if (!holds.present()) {
        return QOR_FAILED;
    }
    oProducts = newHandles(holds);
    return QOR_OK;
}

bool Fastener::isOfKnownType() const {
    return std::any_of(VXMFastenerTypes.begin(), VXMFastenerTypes.end(),
                       [this](const VXMFastenerType& known) { return type == known.name; });
}

QORStatus Fastener::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    const QORStatus status = QORAnswer(iInterface, oInterface, fastener_);
    return status < 0 ? Item::QueryInterface(iInterface, oInterface) : status;
}

void Fastener::forgetNeighbours() {
    Item::forgetNeighbours();
    joins.reset();
}

} // namespace planner
