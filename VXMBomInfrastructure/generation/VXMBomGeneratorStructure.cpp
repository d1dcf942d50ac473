// What a product is made of, below its node: an assembly's contents, or a plain product's child occurrences.

#include "QORPlatform/framework/QORDeepStack.h"
#include "QORPlatform/toolkit/QORProgress.h"
#include "VXMBomInfrastructure/generation/VXMBomComputation.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/generation/VXMBomRecorder.h"
#include "VXMBomInfrastructure/generation/VXMStructure.h"
#include "VXMBomInfrastructure/generation/VXMTooManyNodes.h"
#include "VXMBomInfrastructure/index/VXMPool.h"
#include "VXMBomInfrastructure/index/VXMStructures.h"
#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/VXMIMfgAssembly.h"
#include "VXMBomInfrastructure/nodes/VXMProductName.h"

#include <algorithm>
#include <utility>

/// A node of the build, its own part from a pool as its state is.
class VXMPooledMBOMNode final : public VXMFabMBOMNode {
public:
    using VXMFabMBOMNode::VXMFabMBOMNode;

    static void* operator new(std::size_t) { return VXMPool<sizeof(VXMFabMBOMNode)>::Get().Take(); }
    static void operator delete(void* iNode) { VXMPool<sizeof(VXMFabMBOMNode)>::Get().GiveBack(iNode); }

    /// Puts the new node at the end of a parent's children.
    void Attach(VXMFabMBOMNode& ioParent) {
        ioParent.AddFirst(*this);
        SetPredecessor(&ioParent);
    }
};
static_assert(sizeof(VXMPooledMBOMNode) == sizeof(VXMFabMBOMNode));

VXMFabMBOMNode& VXMAttachNode(VXMBomGenerator& ioGenerator, VXMFabMBOMNode& ioParent,
                              const QORBaseUnknown_var& iProduct, int iLevel, int iNumber,
                              VXMFabMBOMNode::AssignmentType iType, unsigned char iRemovable,
                              const VXMFabFlowNode* iStep) {
    QORWork::Step();
    VXMBomComputation& computation = VXMBomComputation::Of(ioGenerator);
    auto made = std::make_unique<VXMPooledMBOMNode>(iProduct, iLevel, iNumber, iType, iRemovable);
    computation.tree.AddNew(*made);
    VXMPooledMBOMNode& node = *made.release();
    node.Attach(ioParent);
    if (VXMBomRecorder* const recorder = computation.recorder) {
        recorder->NodeMade(node, iStep);
    }
    return node;
}

namespace {

/// The contents of an assembly, which belong to the caller even when the model fills the list and raises then.
std::unique_ptr<QORListValQORBaseUnknown_var> ContentsOf(const VXMIMfgAssembly_var& iAssembly) {
    struct Filled {
        QORListValQORBaseUnknown_var* list = nullptr;
        ~Filled() { delete list; }
    } filled;
    iAssembly->GetAssignedProducts(filled.list);
    return std::unique_ptr<QORListValQORBaseUnknown_var>(std::exchange(filled.list, nullptr));
}

} // namespace

VXMStructure::List VXMStructure::ContentsOf(const QORBaseUnknown_var& iObject, Kind iKind) {
    if (const VXMIMfgAssembly_var assembly{iObject}) {
        return ::ContentsOf(assembly);
    }
    const QORIProduct_var product(iKind == Kind::AssembliesOnly ? QORBaseUnknown_var() : iObject);
    return product ? List(product->GetChildren("QORIProduct")) : nullptr;
}

/// A plain product that is being expanded, for as long as this lives.
class VXMStructure::OnPath {
public:
    OnPath(VXMStructure& ioStructure, const QORBaseUnknown* iProduct)
        : _structure(ioStructure), _product(iProduct),
          _outer(std::exchange(ioStructure._products[iProduct], ioStructure._assemblies + 1)) {}
    ~OnPath() {
        if (_outer == kNone) {
            _structure._products.Remove(_product);
        } else {
            *_structure._products.Find(_product) = _outer;
        }
    }
    OnPath(const OnPath&) = delete;
    OnPath& operator=(const OnPath&) = delete;

private:
    static constexpr int kNone = 0;

    VXMStructure& _structure;
    const QORBaseUnknown* _product;
    int _outer;
};

int VXMStructure::Expand(VXMFabMBOMNode& ioNode, int iLevel, int iNumber) {
    const QORBaseUnknown_var object = ioNode.GetProduct();
    if (!_top) {
        _top = object;
    }
    if (const VXMIMfgAssembly_var assembly{object}) {
        if (_expanded.Find(object.Impl())) {
            return iNumber;
        }
        const List contents = ::ContentsOf(assembly);
        if (!contents || contents->Size() == 0) {
            return iNumber;
        }
        _expanded[object.Impl()] = true;
        ++_assemblies;
        const int number = ExpandList(ioNode, contents, iLevel, iNumber);
        --_assemblies;
        _expanded.Remove(object.Impl());
        return number;
    }
    if (_kind == Kind::AssembliesOnly) {
        return iNumber;
    }
    const QORIProduct_var product(object);
    const int* const above = _products.Find(object.Impl());
    if (!product || (above && *above == _assemblies + 1)) {
        return iNumber;
    }
    const List children(product->GetChildren("QORIProduct"));
    if (!children || children->Size() == 0) {
        return iNumber;
    }
    const OnPath onPath(*this, object.Impl());
    return ExpandList(ioNode, children, iLevel, iNumber);
}

int VXMStructure::ExpandList(VXMFabMBOMNode& ioNode, const List& iList, int iLevel, int iNumber) {
    const unsigned char removable = _kind == Kind::AssembliesOnly ? 1 : 0;
    const int count = iList->Size();
    for (int position = 1; position <= count; ++position) {
        VXMFabMBOMNode& child = VXMAttachNode(_generator, ioNode, (*iList)[position], iLevel + 1, ++iNumber,
                                              ioNode.GetAssignmentType(), removable, nullptr);
        CountPart();
        QORCallDeep([&] { iNumber = Expand(child, iLevel + 1, iNumber); });
    }
    return iNumber;
}

/// Parts that stand in several places multiply from level to level. So when an entry brings more than a few, all that
/// it will bring are counted, before they fill the memory.
void VXMStructure::CountPart() {
    constexpr std::uint64_t kFewParts = 1U << 16U; // are made whatever the limit
    const std::uint64_t parts = ++VXMBomComputation::Of(_generator).parts;
    ++_parts;
    if (parts < kFewParts) {
        return;
    }
    const std::uint64_t coming = _parts == kFewParts ? CountBelow(_top) : 0;
    const auto most = std::max(static_cast<std::uint64_t>(_generator.GetMaxNodes()), kFewParts);
    if (std::max(parts, coming) > most) {
        throw VXMTooManyNodes("products bring at least " + std::to_string(std::max(parts, coming)) +
                              " parts, more than " + std::to_string(most) + ": the latest is \"" +
                              std::string(VXMNameOfProduct(_top)) + "\"; its parts stand in several places");
    }
}

/// The nodes below the node of a product, when they can be told without making them; else 0.
std::uint64_t VXMStructure::CountBelow(const QORBaseUnknown_var& iProduct) const {
    VXMStructures structures(_kind, [](int) { return false; });
    const VXMStructures::Facts facts = structures.Of(iProduct);
    return facts.holdsItself || structures.AreAmbiguous() ? 0 : facts.nodes - 1;
}

int VXMBomGenerator::CreateProductChildren(VXMFabMBOMNode* iNode, int iLevel, int iNumber,
                                           QORListValQORBaseUnknown_var iPath) {
    if (!iNode) {
        return iNumber;
    }
    const VXMModelReading reading(*this);
    VXMStructure structure(*this, VXMStructure::Kind::AssembliesAndProducts);
    for (const QORBaseUnknown_var& object : iPath) {
        structure.WasExpanded(object);
    }
    return structure.Expand(*iNode, iLevel, iNumber);
}

int VXMBomGenerator::CreateOldMAChildren(VXMFabMBOMNode* iNode, int iLevel, int iNumber) {
    const VXMModelReading reading(*this);
    return iNode ? VXMStructure(*this, VXMStructure::Kind::AssembliesOnly).Expand(*iNode, iLevel, iNumber) : iNumber;
}
