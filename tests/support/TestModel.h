#pragma once

#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/QORISPPAbstractActivity.h"
#include "VXMBomInfrastructure/model/QORISPPActivity.h"
#include "VXMBomInfrastructure/model/QORISPPChildManagement.h"
#include "VXMBomInfrastructure/model/QORISPPFlowMgt.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"
#include "VXMBomInfrastructure/model/QORISPPItemMgt.h"
#include "VXMBomInfrastructure/model/QORISPPProductIO.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"
#include "VXMBomInfrastructure/model/VXMIBIWFastener.h"
#include "VXMBomInfrastructure/model/VXMIMfgAssembly.h"
#include "VXMBomInfrastructure/model/VXMIResourceBehavior.h"
#include "VXMBomInfrastructure/model/VXMIResourceBehaviorManager.h"
#include "VXMBomInfrastructure/model/VXMIResourceFlowMgmt.h"
#include "VXMBomInfrastructure/model/VXMIResourceItemMgmt.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// A model small enough to stand in a test: one class of objects, each of which answers just the interfaces that a
/// test wants of it, from fields that the test sets.
namespace testmodel {

/// Interfaces, as bits of Thing::answers.
enum Answers : unsigned {
    kActivity = 1U << 0,
    kAbstract = 1U << 1,
    kSpec = 1U << 2,
    kChildren = 1U << 3,
    kFlow = 1U << 4,
    kItemMgt = 1U << 5,
    kItem = 1U << 6,
    kRecord = 1U << 7,
    kFastener = 1U << 8,
    kAssembly = 1U << 9,
    kProduct = 1U << 10,
    kManager = 1U << 11,
    kBehaviour = 1U << 12,
    kResourceFlow = 1U << 13,
    kResourceItems = 1U << 14
};
inline constexpr unsigned kStep = kActivity | kAbstract | kSpec | kChildren | kFlow | kItemMgt;
inline constexpr unsigned kLogical = kStep & ~kActivity;
inline constexpr unsigned kResource = kProduct | kManager | kResourceFlow | kSpec;

class Thing;
using Things = std::vector<Thing*>;

/// A list that may be missing: none is answered with null.
using MaybeThings = std::optional<Things>;

/// What the calls of a world's operations go through: counts them, keeps their names when asked to, runs what is to
/// happen during each, and raises std::runtime_error at the call whose turn it is.
class Calls {
public:
    void made(const char* operation);

    int count = 0;
    int raiseAt = 0; // 0: never
    bool keepNames = false;
    std::vector<std::string> names;
    std::function<void()> during;
};

class Thing final : public QORBaseUnknown {
public:
    Thing(Calls& calls, int id, unsigned answered, std::string text);

    unsigned answers;
    std::string name;
    std::string assemblyName; // the name as an assembly, where it isn't `name`
    std::string productName;  // likewise
    std::string type;
    std::map<std::string, unsigned char> modelTypes; // results of IsOfType other than 0
    Thing* parent = nullptr;
    MaybeThings children;   // of an activity
    Things predecessors;    // either kind of flow
    Things successors;      // likewise
    bool nullLinks = false; // null for empty lists of a resource flow
    std::map<int, MaybeThings> items{{2, Things()}, {1, Things()}, {4, Things()}, {0, Things()}}; // by relation
    Things outputs;                                                                               // records
    Thing* product = nullptr;                                                                     // of a record
    MaybeThings parts;                                                                            // of a product
    MaybeThings held;                                                                             // by an assembly
    std::string processType = "Rivet";
    unsigned char assigned = 1;
    QORStatus behaviourStatus = QOR_OK;
    Thing* behaviour = nullptr;
    MaybeThings activities; // of a behaviour
    MaybeThings assignedItems;
    MaybeThings outputItems;

    QORStatus QueryInterface(const QORInterfaceID& wanted, void** found) override;

    // Answers of the interfaces; their arguments are checked to be what they always are.
    QORUnicodeString GetName() const { return text("GetName", name); }
    QORUnicodeString GetAssemblyName() const { return text("GetAssemblyName", assemblyName); }
    QORISPPAbstractActivity_var GetParent() const;
    QORStatus GetType(QORUnicodeString& filled) const;
    QORListValQORBaseUnknown_var* GetChildren(const QORUnicodeString& filter) const;
    QORListValQORBaseUnknown_var GetPredecessors(const QORUnicodeString& filter) const;
    QORListValQORBaseUnknown_var GetSuccessors(const QORUnicodeString& filter) const;
    QORListValQORBaseUnknown_var GetProductOutputs(const QORISPPItem_var& item) const;
    QORBaseUnknown_var GetProduct() const;
    QORListValQORBaseUnknown_var* GetItems(const QORUnicodeString& kind, int relation) const;
    unsigned char IsOfType(const QORUnicodeString& modelType) const;
    QORListValQORBaseUnknown_var* GetChildren(const char* interface) const;
    QORUnicodeString GetProductName() const { return text("GetProductName", productName); }
    QORStatus GetInstanceName(QORUnicodeString& filled) const;
    QORStatus GetAssignedProducts(QORListValQORBaseUnknown_var*& filled) const;
    QORUnicodeString GetProcessType() const { return text("GetProcessType", processType); }
    unsigned char IsAssigned() const;
    QORStatus GetBehavior(VXMIResourceBehavior_var& filled) const;
    QORListValQORBaseUnknown_var* GetActivities(void* reserved) const;
    QORListValQORBaseUnknown_var* GetPredecessors() const { return links("GetPredecessors", predecessors); }
    QORListValQORBaseUnknown_var* GetSuccessors() const { return links("GetSuccessors", successors); }
    QORListValQORBaseUnknown_var* GetAssignedItems() const { return handles("GetAssignedItems", assignedItems); }
    QORListValQORBaseUnknown_var* GetOutputItems() const { return handles("GetOutputItems", outputItems); }

private:
    /// An assembly's name may differ from the item's: each interface has its own operation of that name.
    class AssemblyTie : public VXMIMfgAssemblyTie<Thing> {
    public:
        using VXMIMfgAssemblyTie<Thing>::VXMIMfgAssemblyTie;
        QORUnicodeString GetName() override { return Target()->GetAssemblyName(); }
    };

    QORUnicodeString text(const char* operation, const std::string& own) const;
    QORListValQORBaseUnknown_var* handles(const char* operation, const MaybeThings& list) const;
    QORListValQORBaseUnknown_var* links(const char* operation, const Things& list) const;

    Calls& calls_;
    QORISPPActivityTie<Thing> activityTie_{this};
    QORISPPAbstractActivityTie<Thing> abstractTie_{this};
    QORISpecObjectTie<Thing> specTie_{this};
    QORISPPChildManagementTie<Thing> childrenTie_{this};
    QORISPPFlowMgtTie<Thing> flowTie_{this};
    QORISPPItemMgtTie<Thing> itemMgtTie_{this};
    QORISPPItemTie<Thing> itemTie_{this};
    QORISPPProductIOTie<Thing> recordTie_{this};
    VXMIBIWFastenerTie<Thing> fastenerTie_{this};
    AssemblyTie assemblyTie_{this};
    QORIProductTie<Thing> productTie_{this};
    VXMIResourceBehaviorManagerTie<Thing> managerTie_{this};
    VXMIResourceBehaviorTie<Thing> behaviourTie_{this};
    VXMIResourceFlowMgmtTie<Thing> resourceFlowTie_{this};
    VXMIResourceItemMgmtTie<Thing> resourceItemsTie_{this};
};

/// All objects of one model. It keeps them for its own life; they know each other by plain pointer.
class World {
public:
    World() = default;
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    Calls calls;

    /// The thing of that name, made with these answers where there is none yet.
    Thing& thing(const std::string& name, unsigned answers);

    /// The thing of that name, which has to be there.
    Thing& operator[](const std::string& name) const;

    /// All things in the order in which they were made; their identity numbers run from 1.
    const Things& things() const { return things_; }

    /// Joins two things by a flow link, in both views.
    static void link(Thing& from, Thing& to);

    /// Lets an activity put out a product by a record of its own.
    void putOut(Thing& activity, Thing* product);

    /// Gives a resource its behaviour.
    Thing& behaviourOf(Thing& resource);

private:
    Things things_;
    std::map<std::string, Thing*> byName_;
};

} // namespace testmodel
