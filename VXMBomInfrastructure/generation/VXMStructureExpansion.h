#pragma once

#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"

#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class VXMBomGenerator;

/// Makes the MBOM nodes of what one product is made of, depth first, on a stack of its own.
///
/// An assembly lists what it holds, and isn't expanded a second time on one way down. A plain product lists its child
/// occurrences; it may come again below an assembly that came in between (which ends the matter when it comes round
/// itself), but not straight below its own kind, or its structure would have no end.
class VXMStructureExpansion {
public:
    /// What is expanded, and whether the nodes may go as repeats.
    enum class Kind { AssembliesAndProducts, AssembliesOnly };

    VXMStructureExpansion(VXMBomGenerator& ioGenerator, Kind iKind);

    /// Takes an object into the path as if it had been expanded above.
    void EnterPath(const QORBaseUnknown_var& iObject);

    /// Makes the nodes below iNode and gives the number to go on with.
    int Expand(VXMFabMBOMNode* iNode, int iLevel, int iNumber);

private:
    using List = std::unique_ptr<QORListValQORBaseUnknown_var>;

    /// An object on the path, and where the walk through its list stands.
    struct Frame {
        VXMFabMBOMNode* node;
        QORBaseUnknown_var object;
        List list;
        int next = 1;
        bool isAssembly = false;
        int outerDepth = 0; // of the same plain product further up
        int outerAssembly = 0;
    };

    bool Open(VXMFabMBOMNode* iNode);
    List ListOf(const QORBaseUnknown_var& iProduct, bool& oIsAssembly) const;
    void Push(Frame iFrame);
    void Pop();
    bool ComesRound(const QORBaseUnknown* iProduct) const;

    VXMBomGenerator& _generator;
    Kind _kind;
    std::vector<Frame> _path;
    std::unordered_set<const QORBaseUnknown*> _assemblies; // on the path
    std::unordered_map<const QORBaseUnknown*, int> _plain; // on the path: depth of the latest, from 1
    int _lastAssembly = 0;                                 // depth of the latest assembly on the path
};
