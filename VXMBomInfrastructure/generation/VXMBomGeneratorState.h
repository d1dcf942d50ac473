#pragma once

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

    bool isBuilt = false;
    VXMBomResult last;
    std::unique_ptr<VXMBomComputation> computation = std::make_unique<VXMBomComputation>();
    bool isBusy = false;

    /// Runs iWork on a new computation, which is dropped when it raises. The generator is busy meanwhile.
    template <class Work>
    void Compute(Work iWork) {
        const VXMModelReading reading(isBusy);
        Begin();
        try {
            iWork(*computation);
        } catch (...) {
            Begin();
            throw;
        }
    }

    /// Raises when the generator is busy: the model may not take away what is being built from it.
    void ExpectIdle(const char* iOperation) const;

    /// The result that is being written.
    VXMBomResult& GetResult() { return isBusy ? computation->result : last; }

    void Analyse(VXMBomGenerator& ioGenerator);
    void BuildAndClean(VXMBomGenerator& ioGenerator) const;
    void TraceFlowNodes() const;

    /// The first assignment of a node's product beside it; the first one below it with the number of its own parent.
    /// Null when there is none, or no node. Nothing is changed.
    VXMFabMBOMNode* FindAssignmentBeside(VXMFabMBOMNode* iNode) const;
    VXMFabMBOMNode* FindRepeatBelow(VXMFabMBOMNode* iNode) const;
    bool HasRepeatBelow(VXMFabMBOMNode& iNode) const;

private:
    void Begin() { computation = std::make_unique<VXMBomComputation>(); }
};
