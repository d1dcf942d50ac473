#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "VXMBomInfrastructure/index/VXMByObject.h"
#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include <cstdint>
#include <memory>

class VXMBomGenerator;
class VXMFabFlowNode;

/// Makes a node, registers it and puts it at the end of a parent's children. iStep is the step whose list names the
/// product, null for a part of the parent's product.
VXMFabMBOMNode& VXMAttachNode(VXMBomGenerator& ioGenerator, VXMFabMBOMNode& ioParent,
                              const QORBaseUnknown_var& iProduct, int iLevel, int iNumber,
                              VXMFabMBOMNode::AssignmentType iType, unsigned char iRemovable,
                              const VXMFabFlowNode* iStep);

/// Makes the MBOM nodes of what one product is made of, depth first.
///
/// An assembly lists what it holds, and isn't expanded a second time on one way down. A plain product lists its child
/// occurrences; it may come again below an assembly that came in between (which ends the matter when it comes round
/// itself), but not straight below its own kind, or its structure would have no end.
class VXMStructure {
public:
    /// What is expanded, and whether the nodes may go as repeats: the present build takes both, and keeps their nodes;
    /// the legacy one takes assemblies alone, and their nodes may go.
    enum class Kind { AssembliesAndProducts, AssembliesOnly };

    VXMStructure(VXMBomGenerator& ioGenerator, Kind iKind) : _generator(ioGenerator), _kind(iKind) {}

    using List = std::unique_ptr<QORListValQORBaseUnknown_var>;

    /// What an object is made of, as far as a kind of expansion looks at it; null for a leaf.
    static List ContentsOf(const QORBaseUnknown_var& iObject, Kind iKind);

    /// Says that an object was expanded further up, before this began.
    void WasExpanded(const QORBaseUnknown_var& iObject) { _expanded[iObject.Impl()] = true; }

    /// Makes the nodes below ioNode and gives the number to go on with. Raises VXMTooManyNodes when the computation
    /// makes more parts than it may.
    int Expand(VXMFabMBOMNode& ioNode, int iLevel, int iNumber);

private:
    class OnPath;

    int ExpandList(VXMFabMBOMNode& ioNode, const List& iList, int iLevel, int iNumber);
    void CountPart();
    std::uint64_t CountBelow(const QORBaseUnknown_var& iProduct) const;

    VXMBomGenerator& _generator;
    Kind _kind;
    QORBaseUnknown_var _top;     // of the node with which the expansion began
    std::uint64_t _parts = 0;    // that were made below it
    VXMByObject<bool> _expanded; // assemblies on the path, and what the caller named
    VXMByObject<int> _products;  // plain products on the path: assemblies above the latest, and one more
    int _assemblies = 0;         // on the path, of this expansion
};
