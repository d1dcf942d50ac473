#include "VXMBomInfrastructure/generation/VXMStructureExpansion.h"

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/VXMIMfgAssembly.h"

#include <utility>

VXMStructureExpansion::VXMStructureExpansion(VXMBomGenerator& ioGenerator, Kind iKind)
    : _generator(ioGenerator), _kind(iKind) {}

void VXMStructureExpansion::EnterPath(const QORBaseUnknown_var& iObject) {
    Push({.node = nullptr, .object = iObject, .list = nullptr, .isAssembly = bool(VXMIMfgAssembly_var(iObject))});
}

int VXMStructureExpansion::Expand(VXMFabMBOMNode* iNode, int iLevel, int iNumber) {
    const unsigned char removable = _kind == Kind::AssembliesOnly ? 1 : 0;
    const std::size_t above = _path.size();
    if (!iNode || !Open(iNode)) {
        return iNumber;
    }
    while (_path.size() > above) {
        Frame& frame = _path.back();
        if (frame.next > frame.list->Size()) {
            Pop();
            continue;
        }
        const QORBaseUnknown_var& entry = (*frame.list)[frame.next++];
        const int level = iLevel + static_cast<int>(_path.size() - above);
        ++iNumber;
        Open(_generator.AttachNode(entry, level, iNumber, frame.node->GetAssignmentType(), removable, frame.node));
    }
    return iNumber;
}

/// Puts the node's product on the path when it has a list to go through.
bool VXMStructureExpansion::Open(VXMFabMBOMNode* iNode) {
    bool isAssembly = false;
    QORBaseUnknown_var product = iNode->GetProduct();
    List list = ListOf(product, isAssembly);
    if (!list) {
        return false;
    }
    Push({.node = iNode, .object = std::move(product), .list = std::move(list), .isAssembly = isAssembly});
    return true;
}

VXMStructureExpansion::List VXMStructureExpansion::ListOf(const QORBaseUnknown_var& iProduct, bool& oIsAssembly) const {
    if (const VXMIMfgAssembly_var assembly{iProduct}) {
        oIsAssembly = true;
        if (_assemblies.contains(iProduct.Impl())) {
            return nullptr;
        }
        QORListValQORBaseUnknown_var* held = nullptr;
        assembly->GetAssignedProducts(held);
        return List(held);
    }
    const QORIProduct_var product(_kind == Kind::AssembliesAndProducts ? iProduct : QORBaseUnknown_var());
    if (!product || ComesRound(iProduct.Impl())) {
        return nullptr;
    }
    return List(product->GetChildren("QORIProduct"));
}

bool VXMStructureExpansion::ComesRound(const QORBaseUnknown* iProduct) const {
    const auto above = _plain.find(iProduct);
    return above != _plain.end() && above->second > _lastAssembly;
}

void VXMStructureExpansion::Push(Frame iFrame) {
    const int depth = static_cast<int>(_path.size()) + 1;
    iFrame.outerAssembly = _lastAssembly;
    if (iFrame.isAssembly) {
        _assemblies.insert(iFrame.object.Impl());
        _lastAssembly = depth;
    } else {
        int& latest = _plain[iFrame.object.Impl()];
        iFrame.outerDepth = std::exchange(latest, depth);
    }
    _path.push_back(std::move(iFrame));
}

void VXMStructureExpansion::Pop() {
    const Frame& frame = _path.back();
    _lastAssembly = frame.outerAssembly;
    if (frame.isAssembly) {
        _assemblies.erase(frame.object.Impl());
    } else if (frame.outerDepth == 0) {
        _plain.erase(frame.object.Impl());
    } else {
        _plain[frame.object.Impl()] = frame.outerDepth;
    }
    _path.pop_back();
}
