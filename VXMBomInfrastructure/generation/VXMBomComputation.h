#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/dom/DOM_Document.h"
#include "VXMBomInfrastructure/generation/VXMBackwardWalk.h"
#include "VXMBomInfrastructure/generation/VXMBillSources.h"
#include "VXMBomInfrastructure/generation/VXMBomTree.h"
#include "VXMBomInfrastructure/generation/VXMChildVisits.h"
#include "VXMBomInfrastructure/generation/VXMFlowGraph.h"
#include "VXMBomInfrastructure/index/VXMFirstItems.h"
#include "VXMBomInfrastructure/index/VXMFlowEnds.h"
#include "VXMBomInfrastructure/index/VXMRepeatMarks.h"
#include "VXMBomInfrastructure/index/VXMSiblingChains.h"
#include "VXMBomInfrastructure/index/VXMStations.h"

#include <cstdint>
#include <optional>
#include <utility>

class VXMBomGenerator;
class VXMBomRecorder;

/// What a bill shows: the document, its top element, and the object behind every other element.
struct VXMBomResult {
    DOM_Document document;
    DOM_Element rootElement;
    QORListValQORBaseUnknown_var previewObjects;
};

/// All that one computation of a bill makes and remembers. It goes as a whole when the next computation begins, or when
/// the model raises on the way.
struct VXMBomComputation {
    VXMBomTree tree;
    VXMFlowGraph graph; // ends before the tree
    VXMBomResult result;
    VXMBomRecorder* recorder = nullptr; // who hears of the nodes of this computation, null for nobody

    // While the model is walked.
    VXMChildVisits childVisits;
    std::optional<VXMFirstItems> firstItems;
    std::optional<VXMStations> stations;
    std::optional<VXMFlowEnds> flowEnds;

    // While the tree is built, and while a pass goes over it.
    std::uint64_t parts = 0;                                  // that stand below list entries
    VXMBackwardWalk::Form form = VXMBackwardWalk::Form::Full; // of a walk that begins
    std::optional<VXMBackwardWalk> backwardWalk;
    std::optional<VXMSiblingChains> siblings;
    std::optional<VXMRepeatMarks> repeats;

    // When somebody asks for it afterwards.
    std::optional<VXMBillSources> sources;

    /// The present computation of a generator, for the walks and flow nodes that belong to it.
    static VXMBomComputation& Of(VXMBomGenerator& iGenerator);

    /// Whether a generator's model is being read; VXMModelReading sets it.
    static bool& IsBusy(VXMBomGenerator& iGenerator);
};

/// Keeps a generator busy for as long as this lives: its model is being read for graph or tree, and may not take them
/// away meanwhile. One within another changes nothing.
class VXMModelReading {
public:
    explicit VXMModelReading(VXMBomGenerator& iGenerator) : VXMModelReading(VXMBomComputation::IsBusy(iGenerator)) {}
    explicit VXMModelReading(bool& ioIsBusy) : _isBusy(ioIsBusy), _wasBusy(std::exchange(ioIsBusy, true)) {}
    ~VXMModelReading() { _isBusy = _wasBusy; }
    VXMModelReading(const VXMModelReading&) = delete;
    VXMModelReading& operator=(const VXMModelReading&) = delete;

private:
    bool& _isBusy;
    bool _wasBusy;
};
