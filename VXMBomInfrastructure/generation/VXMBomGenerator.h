#pragma once

#include "QORPlatform/collections/QORHashDico.h"
#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/dom/DOM_Document.h"
#include "VXMBomInfrastructure/VXMExport.h"
#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"
#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include <memory>

struct VXMBomComputation;
class VXMBomRecorder;

/// Derives the manufacturing bill of materials of one model object, the root: a document and a list of objects.
///
/// A subclass walks its kind of model into a flow graph; this class turns the graph into a tree of MBOM nodes, cleans
/// the tree and writes the document. Settings and the choice of the algorithm are taken once, at construction. Not
/// counted: whoever makes a generator deletes it. It owns its flow nodes and MBOM nodes and replaces them with each
/// computation. An exception of the model passes through; what the last successful computation gave is then in place
/// as before and is served until the next one.
///
/// Environment: with FAB_BOM_OLD_ALGORITHM set to TRUE, in any mix of cases, the legacy algorithm is used.
class VXM_EXPORT VXMBomGenerator {
public:
    using AssignmentType = VXMFabMBOMNode::AssignmentType;

    /// Keeps a reference to iRoot, which may be null: the bill is empty then.
    explicit VXMBomGenerator(const QORBaseUnknown_var& iRoot);
    virtual ~VXMBomGenerator();
    VXMBomGenerator(const VXMBomGenerator&) = delete;
    VXMBomGenerator& operator=(const VXMBomGenerator&) = delete;

    // The walk of the model, which a subclass supplies.

    /// Walks the model from iCurrent, which is registered already: makes, registers and links a flow node for each step
    /// that it reaches. iPrevious is the node after which iCurrent comes, null for none; iLevel is the depth. Gives the
    /// end of the flow through iCurrent, from which the caller links on.
    virtual VXMFabFlowNode* CheckFlow(VXMFabFlowNode* iPrevious, VXMFabFlowNode* iCurrent, int iLevel) = 0;

    /// The item at which the flow through iItem begins; where predecessors run in a circle, the one at which the search
    /// enters it.
    virtual QORBaseUnknown_var GetFirstFlowNode(const QORBaseUnknown_var& iItem) = 0;

    /// 1 when iItem stands outside all flows and is left out of the walk, else 0.
    virtual unsigned char IsStandaloneLogicalNode(const QORBaseUnknown_var& iItem) = 0;

    /// A new flow node for iItem with the number GetCounter, or null. The caller owns it until it is registered.
    virtual VXMFabFlowNode* CreateFlowNode(QORBaseUnknown_var iItem, const int iLevel) = 0;

    // What a computation is to do, besides. Each holds for the computations that begin later.

    /// Ends the flow at the step of iStep, an object that the walk makes a flow node for: the bill shows what is there
    /// once that step is finished. Null for the end of the whole flow, as at first. The bill is empty when the step has
    /// no flow node, which CheckUse tells afterwards.
    void SetEndOfFlow(const QORBaseUnknown_var& iStep);

    /// Tells iRecorder, which the caller owns and keeps alive, how the bill comes about; null for nobody, as at first.
    void SetRecorder(VXMBomRecorder* iRecorder);

    /// Bounds the nodes that a computation makes for steps that are reached on several paths, and how often a trace
    /// shows these; below 0 is 0. One that would make more raises VXMTooManyNodes before it makes any. What a plan
    /// lists on one path only is never refused for that. The parts of products are bounded likewise, but 65,536 of them
    /// are always made.
    void SetMaxNodes(long long iCount);
    long long GetMaxNodes() const;
    static constexpr long long kMaxNodes = 20'000'000; ///< at first; they take some eight gigabytes

    // The computation.

    /// The document. 1 forces a new computation; with any other value a document that is there is served as it is.
    /// Copy the handle: the next computation replaces what the reference refers to. A model that asks while it is being
    /// read gets the last document, whatever the flag; when there is none yet, std::logic_error.
    DOM_Document& GetBom(unsigned char iForce);

    /// The object behind every element of the document but the top one, an element's descendants before itself.
    QORListValQORBaseUnknown_var GetPreviewObjects();

    /// 0 when the last document would be the same whatever the lists of iObject, an activity or a product, held by now;
    /// 1 when it may differ, and also while a document is being computed or none is there. Links and what stands in the
    /// plan must be as they were.
    unsigned char DependsOnListsOf(const QORBaseUnknown_var& iObject);

    /// Runs the analysis of the model: drops graph and tree, makes the node of the root and walks from it. A model that
    /// calls this, or drops graph or tree, while it is being read gets std::logic_error.
    void MainCheckFlow();

    /// The end of the flow along first successors, null for null. Where they run in a circle, the last node before the
    /// search would come to one for the second time.
    VXMFabFlowNode* GetLastNodeInFlow(VXMFabFlowNode* iNode);

    /// The flow node that is registered for a model object, or null.
    VXMFabFlowNode* CheckUse(const QORBaseUnknown_var& iObject);

    // Registries.

    /// The top node of the tree, null while there is none.
    VXMFabMBOMNode* GetTopNode() const;
    void SetTopNode(VXMFabMBOMNode* iNode);

    /// Number that the next flow node gets, from 1.
    int GetCounter() const;
    void IncreaseCounter();

    /// Mask of the fastener types to show, and 1 for assigned fasteners only.
    int GetFastenersShowMode() const;
    unsigned char GetAssignedFastenersShowMode() const;

    /// Registers a new flow node, which the generator owns from then on. A null node takes a number all the same and
    /// leaves a null entry in the list, but none in the dictionary.
    void UpdateFlowNodeLists(VXMFabFlowNode* iNode);
    void InsertToFlowNodeDico(VXMFabFlowNode* iNode);
    void AppendToFlowNodeList(VXMFabFlowNode* iNode);

    /// Registers an MBOM node, which the generator owns from then on. Null is ignored, and so is a node of no known
    /// type.
    void AddMBOMNodeToList(VXMFabMBOMNode* iNode);

    /// Drop the flow graph, and the MBOM tree with the numbers of its nodes. Which products were taken out of the flow
    /// stays known until the next computation.
    void FreeFN();
    void FreeMN();

    // Construction of the MBOM.

    /// Makes the nodes of iFlowNode and of all that comes before it as children of the top node, with the structure of
    /// each product below it. A flow node is taken once per path that leads from it to the end.
    void CreateMBOM(VXMFabFlowNode* iFlowNode, VXMFabMBOMNode* iParent, int iNumber);

    /// The legacy way: nodes of a step, and of all that comes before it, stand under the step's first output product;
    /// structure comes from assemblies only.
    void CreateOldMBOM(VXMFabFlowNode* iFlowNode, VXMFabMBOMNode* iParent, int iNumber);

    /// Makes the nodes of what iNode's product is made of, and gives the number to go on with. iPath holds the objects
    /// that were expanded on the way down to iNode; an assembly that is among them stays a leaf.
    int CreateProductChildren(VXMFabMBOMNode* iNode, int iLevel, int iNumber, QORListValQORBaseUnknown_var iPath);

    /// The same from manufacturing assemblies alone, for the legacy way.
    int CreateOldMAChildren(VXMFabMBOMNode* iNode, int iLevel, int iNumber);

    /// 1 when a flow node's list of that type takes part in the bill: inside a station only what loading activities
    /// assign first does.
    unsigned char UseProducts(VXMFabFlowNode* iFlowNode, AssignmentType iType);

    // Cleaning of the MBOM. Nodes are of one product when they share the identity number.

    /// Takes away removals, each with an assignment of the same product that stands beside it.
    void CleanMBOM_RemoveAssignments();

    /// Takes away process assignments of products that are assigned otherwise under the same parent.
    void CleanMBOM_ProcessAssignments();

    /// Takes away every removable node whose product was met before, with all below it. ioMet holds what was met.
    void CleanMBOM_3(VXMFabMBOMNode* iNode, QORHashDico& ioMet);

    /// Passes of the legacy way: repeats among the children of iNode go without what is below them, deeper ones with
    /// it; and repeats beside each other at any level.
    void CleanMBOM_1(VXMFabMBOMNode* iNode, QORHashDico& ioMet);
    void CleanMBOM_2(VXMFabMBOMNode* iNode);

    /// One step of the passes; 1 when iNode was removed, else 0.
    unsigned char CheckPreviousAssignments(VXMFabMBOMNode* iNode);
    unsigned char CheckPreviousFPAssignments(VXMFabMBOMNode* iNode);

    /// The first assignment of iNode's product beside it, or null. Nothing is changed.
    VXMFabMBOMNode* RemoveParallelRemoveAssignment(VXMFabMBOMNode* iNode);
    VXMFabMBOMNode* RemoveParallelProcessAssignment(VXMFabMBOMNode* iNode);

    /// The first assignment below iNode that has the identity of its own parent, or null. Nothing is changed.
    VXMFabMBOMNode* RemoveRemoveAssignment(VXMFabMBOMNode* iNode);
    VXMFabMBOMNode* RemoveProcessAssignment(VXMFabMBOMNode* iNode);

    /// Take a node out of the tree and delete it: alone, its children going to the end of its parent's list; or with
    /// all below it. 0 for null and for a node without parent, else 1.
    unsigned char RemoveNodeFromMBOMFlow(VXMFabMBOMNode* iNode);
    unsigned char RemoveNodeAndChildrenFromMBOMFlow(VXMFabMBOMNode* iNode);

    /// Unregister and delete a node, or a whole subtree with the children first. 0 for null, else 1.
    unsigned char RemoveFromListAndDico(VXMFabMBOMNode* iNode);
    unsigned char RemoveNodeAndChildrenFromListAndDico(VXMFabMBOMNode* iNode);

    /// Appends the source's children to the target's, and changes nothing else.
    void MoveSuccessors(VXMFabMBOMNode* iSource, VXMFabMBOMNode* iTarget);

    // Output.

    /// Writes the children of iNode under iElement and adds their objects to the list of objects.
    void DisplayMBOM(DOM_Element iElement, VXMFabMBOMNode* iNode);

    /// Dumps to the trace: names and links of the flow nodes; names, and links, of the MBOM nodes.
    void TraceFlow();
    void TraceMBOM1();
    void TraceMBOM2();

private:
    friend struct VXMBomComputation;

    class State;
    std::unique_ptr<State> _state;
};
