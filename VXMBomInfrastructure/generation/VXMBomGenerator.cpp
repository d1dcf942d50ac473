// Driver of one computation: the model is walked into a flow graph, the graph turned into MBOM nodes, these are thinned
// out by three passes, and what remains is written as a document. Construction reads settings and algorithm once.

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include "QORPlatform/dom/QORXMLParser.h"
#include "QORPlatform/framework/QORComponents.h"
#include "QORPlatform/framework/QORModelIdentificator.h"
#include "QORPlatform/framework/QORProcessServices.h"
#include "QORPlatform/toolkit/QORProgress.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/generation/VXMBomGeneratorState.h"
#include "VXMBomInfrastructure/generation/VXMBomRecorder.h"
#include "VXMBomInfrastructure/model/VXMIMVWMBOMViewerSettingAtt.h"
#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

/// Only 1 means on; a setting that can't be read is on.
bool IsOn(const VXMIMVWMBOMViewerSettingAtt_var& iSettings, decltype(VXMFastenerType::GetShow) iRead) {
    int value = 1;
    if (iSettings) {
        ((*iSettings.Get()).*iRead)(value);
    }
    return value == 1;
}

VXMIMVWMBOMViewerSettingAtt_var FindSettings() {
    void* found = nullptr;
    QORInstantiateComponent("VXMMVWMBOMViewerSettingCtrl", IID_VXMIMVWMBOMViewerSettingAtt, &found);
    return VXMIMVWMBOMViewerSettingAtt_var::Adopt(static_cast<VXMIMVWMBOMViewerSettingAtt*>(found));
}

bool IsLegacyAlgorithmChosen() {
    QORUnicodeString value(QORGetEnv("FAB_BOM_OLD_ALGORITHM"));
    value.ToUpper();
    return value.Compare("TRUE") != 0;
}

} // namespace

VXMBomComputation& VXMBomComputation::Of(VXMBomGenerator& iGenerator) {
    return *iGenerator._state->computation;
}

bool& VXMBomComputation::IsBusy(VXMBomGenerator& iGenerator) {
    return iGenerator._state->isBusy;
}

void VXMBomGenerator::State::ExpectIdle(const char* iOperation) const {
    if (isBusy) {
        throw std::logic_error("VXMBomGenerator::" + std::string(iOperation) +
                               ": called by the model that this generator is reading");
    }
}

VXMBomGenerator::VXMBomGenerator(const QORBaseUnknown_var& iRoot) : _state(std::make_unique<State>(iRoot)) {
    QORXMLParser::Initialize();
    const VXMIMVWMBOMViewerSettingAtt_var settings = FindSettings();
    int bit = 1;
    for (const VXMFastenerType& type : VXMFastenerTypes) {
        _state->fastenersShowMode += IsOn(settings, type.GetShow) ? bit : 0;
        bit <<= 1;
    }
    const bool assignedOnly = IsOn(settings, &VXMIMVWMBOMViewerSettingAtt::GetShowAssignedFastenersOnly);
    _state->assignedFastenersShowMode = assignedOnly ? 1 : 0;
    _state->usesLegacyAlgorithm = IsLegacyAlgorithmChosen();
}

VXMBomGenerator::~VXMBomGenerator() {
    _state->last.previewObjects.RemoveAll();
}

DOM_Document& VXMBomGenerator::GetBom(unsigned char iForce) {
    if (_state->isBusy && !_state->isBuilt) {
        _state->ExpectIdle("GetBom");
    }
    if (_state->isBusy || (_state->isBuilt && iForce != 1)) {
        return _state->last.document;
    }
    const QORWork work;
    _state->Compute([this](VXMBomComputation& ioComputation) {
        ioComputation.recorder = _state->recorder;
        if (ioComputation.recorder) {
            ioComputation.recorder->Begin();
        }
        VXMBomResult& result = ioComputation.result;
        result.document = DOM_Document::createDocument();
        result.rootElement = result.document.createElement("BOM");
        result.document.appendChild(result.rootElement);
        _state->Analyse(*this);
        _state->BuildAndClean(*this);
        DisplayMBOM(result.rootElement, GetTopNode());
        _state->last = std::move(result);
        _state->isBuilt = true;
    });
    return _state->last.document;
}

unsigned char VXMBomGenerator::DependsOnListsOf(const QORBaseUnknown_var& iObject) {
    if (_state->isBusy || !_state->isBuilt || !_state->computation->graph.GetFirst()) {
        return 1;
    }
    const VXMModelReading reading(*this);
    std::optional<VXMBillSources>& sources = _state->computation->sources;
    if (!sources) {
        sources.emplace(_state->FindEnd(*this));
    }
    const bool isStep = static_cast<bool>(QORISPPAbstractActivity_var(iObject));
    return (isStep ? sources->HasStep(iObject.Impl()) : sources->HasProduct(iObject.Impl())) ? 1 : 0;
}

/// Where the walk backwards begins; null when the graph has no such node.
VXMFabFlowNode* VXMBomGenerator::State::FindEnd(VXMBomGenerator& ioGenerator) const {
    return endOfFlow ? ioGenerator.CheckUse(endOfFlow) : ioGenerator.GetLastNodeInFlow(computation->graph.GetFirst());
}

/// The two algorithms and the order of their passes.
void VXMBomGenerator::State::BuildAndClean(VXMBomGenerator& ioGenerator) const {
    VXMBomGenerator& bom = ioGenerator;
    VXMFabFlowNode* const end = FindEnd(bom);
    auto made = std::make_unique<VXMFabMBOMNode>(QORBaseUnknown_var(), 0, 0, VXMFabMBOMNode::AT_Top, 1);
    bom.AddMBOMNodeToList(made.get());
    VXMFabMBOMNode* const top = made.release();
    bom.SetTopNode(top);
    // A trace hears of every node, as a recorder may, and the legacy tree has the paths in it.
    const bool isRecordedWhole = computation->recorder && computation->recorder->WantsEveryNode() == 1;
    const bool isFull = usesLegacyAlgorithm || VXMBomViewerTrace.IsActive() || isRecordedWhole;
    computation->form = isFull ? VXMBackwardWalk::Form::Full : VXMBackwardWalk::Form::Thinned;
    usesLegacyAlgorithm ? bom.CreateOldMBOM(end, top, 1) : bom.CreateMBOM(end, top, 1);
    computation->form = VXMBackwardWalk::Form::Full;
    bom.TraceMBOM1();
    bom.TraceMBOM2();
    bom.CleanMBOM_RemoveAssignments();
    bom.TraceMBOM2();
    usesLegacyAlgorithm ? RemoveRepeats(bom, *top) : bom.CleanMBOM_ProcessAssignments();
    bom.TraceMBOM2();
    usesLegacyAlgorithm ? bom.CleanMBOM_2(top) : RemoveRepeats(bom, *top);
    bom.TraceMBOM2();
}

QORListValQORBaseUnknown_var VXMBomGenerator::GetPreviewObjects() {
    return _state->last.previewObjects;
}

void VXMBomGenerator::MainCheckFlow() {
    _state->ExpectIdle("MainCheckFlow");
    if (_state->root) {
        _state->Compute([this](VXMBomComputation&) { _state->Analyse(*this); });
    }
}

void VXMBomGenerator::State::Analyse(VXMBomGenerator& ioGenerator) {
    if (!root) {
        return;
    }
    VXMBomComputation& walked = *computation;
    walked.firstItems.emplace(VXMFirstItems::Answers::Kept);
    walked.stations.emplace();
    walked.flowEnds.emplace();
    std::unique_ptr<VXMFabFlowNode> first(ioGenerator.CreateFlowNode(root, 0));
    if (first) {
        ioGenerator.UpdateFlowNodeLists(first.get());
        walked.graph.SetFirst(first.release());
        ioGenerator.CheckFlow(nullptr, walked.graph.GetFirst(), 0);
        ioGenerator.TraceFlow();
        TraceFlowNodes();
    }
    walked.firstItems.reset();
    walked.stations.reset();
    walked.flowEnds.reset();
}

VXMFabFlowNode* VXMBomGenerator::GetLastNodeInFlow(VXMFabFlowNode* iNode) {
    std::optional<VXMFlowEnds>& ends = _state->computation->flowEnds; // while a walk runs
    return ends ? ends->Find(iNode) : VXMFlowEnds::Walk(iNode);
}

void VXMBomGenerator::SetEndOfFlow(const QORBaseUnknown_var& iStep) {
    _state->endOfFlow = iStep;
}

void VXMBomGenerator::SetRecorder(VXMBomRecorder* iRecorder) {
    _state->recorder = iRecorder;
}

void VXMBomGenerator::SetMaxNodes(long long iCount) {
    _state->maxNodes = std::max(iCount, 0LL);
}

long long VXMBomGenerator::GetMaxNodes() const {
    return _state->maxNodes;
}

VXMFabFlowNode* VXMBomGenerator::CheckUse(const QORBaseUnknown_var& iObject) {
    return iObject ? _state->computation->graph.Find(QORModelIdentificator(iObject->GetImpl(0)).GetIntId()) : nullptr;
}

VXMFabMBOMNode* VXMBomGenerator::GetTopNode() const {
    return _state->computation->tree.GetTop();
}

void VXMBomGenerator::SetTopNode(VXMFabMBOMNode* iNode) {
    _state->computation->tree.SetTop(iNode);
}

int VXMBomGenerator::GetCounter() const {
    return _state->computation->graph.GetCounter();
}

void VXMBomGenerator::IncreaseCounter() {
    _state->computation->graph.IncreaseCounter();
}

int VXMBomGenerator::GetFastenersShowMode() const {
    return _state->fastenersShowMode;
}

unsigned char VXMBomGenerator::GetAssignedFastenersShowMode() const {
    return _state->assignedFastenersShowMode;
}

void VXMBomGenerator::UpdateFlowNodeLists(VXMFabFlowNode* iNode) {
    IncreaseCounter();
    InsertToFlowNodeDico(iNode);
    AppendToFlowNodeList(iNode);
}

void VXMBomGenerator::InsertToFlowNodeDico(VXMFabFlowNode* iNode) {
    _state->computation->graph.Enter(iNode);
}

void VXMBomGenerator::AppendToFlowNodeList(VXMFabFlowNode* iNode) {
    _state->computation->graph.Append(iNode);
}

void VXMBomGenerator::AddMBOMNodeToList(VXMFabMBOMNode* iNode) {
    _state->computation->tree.Add(iNode);
}

void VXMBomGenerator::FreeFN() {
    _state->ExpectIdle("FreeFN");
    _state->computation->graph.Free();
}

void VXMBomGenerator::FreeMN() {
    _state->ExpectIdle("FreeMN");
    _state->computation->tree.Free();
}
