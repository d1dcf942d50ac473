#pragma once

#include "QORPlatform/dom/QORDomWriter.h"
#include "VXMBomInfrastructure/generation/VXMBomComputation.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

/// What a generator has: root and settings for life, the last result, and the present computation.
class VXM_HIDDEN VXMBomGenerator::State {
public:
    explicit State(const QORBaseUnknown_var& iRoot) : root(iRoot) {}

    const QORBaseUnknown_var root;
    int fastenersShowMode = 0;
    unsigned char assignedFastenersShowMode = 0;
    bool usesLegacyAlgorithm = false;
    QORBaseUnknown_var endOfFlow;
    VXMBomRecorder* recorder = nullptr;
    long long maxNodes = VXMBomGenerator::kMaxNodes;

    bool isBuilt = false;
    VXMBomResult last;
    std::unique_ptr<VXMBomComputation> computation = std::make_unique<VXMBomComputation>();
    bool isBusy = false;

    /// Runs iWork on a new computation, which is dropped when it raises. The generator is busy meanwhile.
    template <class Work>
    void Compute(Work iWork) {
        const VXMModelReading reading(isBusy);
        auto none = std::make_unique<VXMBomComputation>(); // made now: there may be no memory when the work raises
        computation = std::make_unique<VXMBomComputation>();
        try {
            iWork(*computation);
        } catch (...) {
            computation = std::move(none);
            throw;
        }
    }

    /// Raises when the generator is busy: the model may not take away what is being built from it.
    void ExpectIdle(const char* iOperation) const;

    /// The result that is being written.
    VXMBomResult& GetResult() { return isBusy ? computation->result : last; }

    void Analyse(VXMBomGenerator& ioGenerator);
    VXMFabFlowNode* FindEnd(VXMBomGenerator& ioGenerator) const;
    void BuildAndClean(VXMBomGenerator& ioGenerator) const;
    void TraceFlowNodes() const;

    /// Takes repeats away over the whole tree, as CleanMBOM_3 (CleanMBOM_1 by the legacy algorithm) does, by numbers.
    void RemoveRepeats(VXMBomGenerator& ioGenerator, VXMFabMBOMNode& ioTop) const;

    /// Writes the children of a node to a place of the document, and lists their objects.
    void Display(QORDomWriter& ioWriter, QORDomWriter::Place iPlace, const VXMFabMBOMNode& iNode);

    /// The first assignment of a node's product beside it; the first one below it with the number of its own parent.
    /// Null when there is none, or no node. Nothing is changed.
    VXMFabMBOMNode* FindAssignmentBeside(VXMFabMBOMNode* iNode) const;
    VXMFabMBOMNode* FindRepeatBelow(VXMFabMBOMNode* iNode) const;
    bool HasRepeatBelow(VXMFabMBOMNode& iNode) const;
};
