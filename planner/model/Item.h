#pragma once

#include "planner/model/Geometry.h"
#include "planner/model/Kinds.h"
#include "planner/model/ModelObject.h"

#include "QORPlatform/visualization/QORI3DGeoVisu.h"
#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"
#include "VXMBomInfrastructure/model/VXMIBIWFastener.h"
#include "VXMBomInfrastructure/model/VXMIMfgAssembly.h"

namespace planner {

class Plan;

/// Something that activities and resources list. This class alone is the kind "item": a tool, a jig. With a shape it
/// can be seen in space. An item that loses its shape has neither shape nor place to give; when somebody but the plan
/// holds the item then, it goes on answering QORI3DGeoVisu, so that a view that shows it can still end that.
class Item : public ModelObject {
public:
    explicit Item(ItemKind kind = ItemKind::Item) : ModelObject(Sort::Item), kind_(kind) {}

    ItemKind kind() const { return kind_; }

    /// Whether the item is a product occurrence, which may stand among the children of another.
    virtual bool answersProduct() const { return false; }

    const Geometry& geometry() const;
    void setShape(std::optional<Shape> shape);
    void setPlace(std::optional<Place> place) { makeBody().geometry.place = std::move(place); }

    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;
    void forgetNeighbours() override { plan_ = nullptr; }

    // Answer of QORISPPItem, and of VXMIMfgAssembly.
    QORUnicodeString GetName() const { return platformText(name()); }

    // Answers of QORI3DGeoVisu. Without a shape they fail and leave the argument alone.
    QORStatus GetShape(QORGeoShape& oShape) const;
    QORStatus GetPlace(QORGeoPlace& oPlace) const;

private:
    friend class Plan;

    /// What an item has that isn't without extent; once made it stays, since handles may go through it.
    struct Body {
        explicit Body(Item* item) : visible(item) {}
        Geometry geometry;
        bool mayBeShown = false; // without a shape
        QORI3DGeoVisuTie<Item> visible;
    };

    Body& makeBody();
    std::string pathOf(const std::string& file) const;

    ItemKind kind_;
    const Plan* plan_ = nullptr;
    std::unique_ptr<Body> body_;
    QORISPPItemTie<Item> item_{this};
};

/// A product occurrence with its structure.
class Product : public Item {
public:
    explicit Product(ItemKind kind = ItemKind::Product) : Item(kind) {}

    /// Child occurrences, in order.
    ObjectList children;

    bool answersProduct() const override { return true; }
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;
    void forgetNeighbours() override;

    // Answers of QORIProduct.
    QORListValQORBaseUnknown_var* GetChildren(const char* iInterface) const;
    QORUnicodeString GetProductName() const { return platformText(name()); }
    QORStatus GetInstanceName(QORUnicodeString& oName) const;

private:
    QORIProductTie<Product> product_{this};
};

/// A manufacturing assembly. It is a product occurrence as well once it has children, be it an empty list of them.
class Assembly final : public Product {
public:
    Assembly() : Product(ItemKind::Assembly) {}

    /// What the assembly holds, items of any kind.
    ObjectList holds;

    bool answersProduct() const override { return children.present(); }
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;
    void forgetNeighbours() override;

    // Answer of VXMIMfgAssembly.
    QORStatus GetAssignedProducts(QORListValQORBaseUnknown_var*& oProducts) const;

private:
    VXMIMfgAssemblyTie<Assembly> assembly_{this};
};

/// A joining element.
class Fastener final : public Item {
public:
    Fastener() : Item(ItemKind::Fastener) {}

    /// Process type, any text; empty when the file gives none.
    std::optional<std::string> type;

    /// Whether the type is one of those that a bill can show.
    bool isOfKnownType() const;

    /// Whether it counts as assigned; without a value it does.
    std::optional<bool> assigned;

    /// What it joins, items of any kind. The bill doesn't ask for it.
    ObjectList joins;

    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;
    void forgetNeighbours() override;

    // Answers of VXMIBIWFastener.
    QORUnicodeString GetProcessType() const { return platformText(type.value_or("")); }
    unsigned char IsAssigned() const { return assigned.value_or(true) ? 1 : 0; }

private:
    VXMIBIWFastenerTie<Fastener> fastener_{this};
};

} // namespace planner
