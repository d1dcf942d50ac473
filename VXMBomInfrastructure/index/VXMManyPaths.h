// What a build does about steps that are reached on many paths: it counts beforehand how many nodes they would make,
// and walks only the paths on which something is kept.
//
// In place of: walking all paths, without knowing how many there are.
// Why the same: VXMKeptOccurrences tells why the nodes that aren't made leave no trace. Each step on a path that is
// walked counts the nodes that it leaves out, so that those which are made get their numbers. Items that are kept whole
// are made on every path.
// What it gains: VXMKeptOccurrences tells that as well; and a plan whose bill can't be shorter than its paths ends in
// an error in place of filling the memory.

#pragma once

#include "VXMBomInfrastructure/generation/VXMStructure.h"
#include "VXMBomInfrastructure/index/VXMKeptOccurrences.h"

#include <optional>

class VXMManyPaths {
public:
    enum class Form { Full, Thinned };

    /// Whether a trace shows each call for a step.
    enum class Calls { Shown, Hidden };

    /// What a build is like. takes(step, type) tells whether it takes a step's list of a type; mostNodes bounds the
    /// nodes made for steps with several paths, and the calls that this takes. One that shows its calls is in full
    /// form.
    struct Build {
        Form form;
        Calls calls;
        VXMStructure::Kind kind;
        std::function<bool(VXMFabFlowNode&, VXMFabMBOMNode::AssignmentType)> takes;
        std::uint64_t mostNodes;
    };

    /// Raises VXMTooManyNodes. The graph isn't a tree, and lives as long.
    VXMManyPaths(const VXMStepGraph& iGraph, int iEnd, const Build& iBuild);
    VXMManyPaths(const VXMManyPaths&) = delete;
    VXMManyPaths& operator=(const VXMManyPaths&) = delete;

    /// Whether anything is left out; else every step is to be taken once per path.
    bool IsThinned() const { return _kept.has_value(); }

    /// A step on one of the paths that are walked.
    class Visit {
    public:
        /// The end.
        explicit Visit(const VXMManyPaths& iPaths) : Visit(iPaths, 0, VXMPathTree::kRoot) {}

        /// Asked once for each entry that the build takes, in order: 0 when its node is made, else the number of
        /// nodes that are left out.
        std::uint64_t LeavesOut();

        /// The next step before this one that is walked to, none behind the last.
        std::optional<Visit> Next();

        VXMFabFlowNode* GetStep() const { return _paths->_graph.StepOf(_paths->_places.StepAt(_place)); }

    private:
        static constexpr int kNoNode = -1;

        Visit(const VXMManyPaths& iPaths, int iPlace, int iNode);

        const VXMManyPaths* _paths;
        int _place;
        int _node; // of the tree, kNoNode off it
        int _entry = 0;
        std::span<const int> _kept; // entries that are still to come
        int _position = 0;
        std::span<const VXMPathTree::Branch> _branches; // that are still to come
    };

private:
    void FindWhole(Calls iCalls);
    void CheckCost(const Build& iBuild) const;
    bool IsMade(const VXMListings::Entry& iEntry) const { return !_kept || !_items->IsThinned(iEntry.item); }
    double CountMade(int iPlace) const;
    [[noreturn]] void Raise(const Build& iBuild, double iNodes) const;
    [[noreturn]] void RaiseOfLoop(const Build& iBuild) const;

    const VXMStepGraph& _graph;
    VXMUnrolledSteps _places;
    std::optional<VXMListings> _listings;
    std::optional<VXMThinnedItems> _items;
    std::optional<VXMUnrolledSteps::Paths> _first;
    std::vector<std::uint64_t> _pathCounts; // by place
    std::vector<bool> _hasManyPaths;        // by step number
    std::optional<VXMKeptOccurrences> _kept;
    std::vector<bool>
        _leadsToWhole; // by place: it is taken on every path, since an item that is kept whole asks for it
};
