// Driver of one computation: the model is walked into a flow graph, the graph turned into MBOM nodes, these are thinned
// out by three passes, and what remains is written as a document. Construction reads settings and algorithm once.

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include "QORPlatform/dom/QORXMLParser.h"
#include "QORPlatform/framework/QORComponents.h"
#include "QORPlatform/framework/QORDeepStack.h"
#include "QORPlatform/framework/QORModelIdentificator.h"
#include "QORPlatform/framework/QORProcessServices.h"
#include "VXMBomInfrastructure/generation/VXMFirstItemSearch.h"
#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"
#include "VXMBomInfrastructure/nodes/VXMFlowEnds.h"
#include "VXMBomInfrastructure/nodes/VXMStationMemo.h"

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

} // namespace

/// Keeps what the last success gave while a new computation runs, and puts it back unless that one succeeds too.
class VXMBomGenerator::Computation {
public:
    explicit Computation(VXMBomGenerator& ioGenerator)
        : _generator(ioGenerator), _document(ioGenerator._document), _rootElement(ioGenerator._rootElement),
          _previewObjects(std::exchange(ioGenerator._previewObjects, {})) {}
    ~Computation() {
        if (_succeeded) {
            return;
        }
        _generator.FreeFN();
        _generator.FreeMN();
        _generator._topNode = nullptr;
        _generator._document = _document;
        _generator._rootElement = _rootElement;
        _generator._previewObjects = std::move(_previewObjects);
    }
    Computation(const Computation&) = delete;
    Computation& operator=(const Computation&) = delete;

    void Succeed() { _succeeded = true; }

private:
    VXMBomGenerator& _generator;
    DOM_Document _document;
    DOM_Element _rootElement;
    QORListValQORBaseUnknown_var _previewObjects;
    bool _succeeded = false;
};

namespace {

/// Stations are remembered for as long as this lives.
class StationsKept {
public:
    explicit StationsKept(VXMStationMemo*& oPlace) : _place(oPlace) { _place = &_memo; }
    ~StationsKept() { _place = nullptr; }
    StationsKept(const StationsKept&) = delete;
    StationsKept& operator=(const StationsKept&) = delete;

private:
    VXMStationMemo _memo;
    VXMStationMemo*& _place;
};

} // namespace

VXMBomGenerator::VXMBomGenerator(const QORBaseUnknown_var& iRoot)
    : _rootObject(iRoot), _firstItems(std::make_unique<VXMFirstItemSearch>()) {
    QORXMLParser::Initialize();
    ReadSettings();
    ReadAlgorithm();
}

VXMBomGenerator::~VXMBomGenerator() {
    _previewObjects.RemoveAll();
    FreeFN();
    FreeMN();
}

void VXMBomGenerator::ReadSettings() {
    void* found = nullptr;
    QORInstantiateComponent("VXMMVWMBOMViewerSettingCtrl", IID_VXMIMVWMBOMViewerSettingAtt, &found);
    const auto settings = VXMIMVWMBOMViewerSettingAtt_var::Adopt(static_cast<VXMIMVWMBOMViewerSettingAtt*>(found));
    int bit = 1;
    for (const VXMFastenerType& type : VXMFastenerTypes) {
        _fastenersShowMode += IsOn(settings, type.GetShow) ? bit : 0;
        bit <<= 1;
    }
    _assignedFastenersShowMode = IsOn(settings, &VXMIMVWMBOMViewerSettingAtt::GetShowAssignedFastenersOnly) ? 1 : 0;
}

void VXMBomGenerator::ReadAlgorithm() {
    QORUnicodeString value(QORGetEnv("FAB_BOM_OLD_ALGORITHM"));
    value.ToUpper();
    _useOldAlgorithm = value.Compare("TRUE") != 0 ? 1 : 0;
}

DOM_Document& VXMBomGenerator::GetBom(unsigned char iForce) {
    if (_bomBuilt != 0 && iForce != 1) {
        return _document;
    }
    Computation computation(*this);
    _document = DOM_Document::createDocument();
    _rootElement = _document.createElement("BOM");
    _document.appendChild(_rootElement);
    MainCheckFlow();
    FreeMN(); // without a root nothing has dropped the tree before
    VXMFabFlowNode* const last = GetLastNodeInFlow(_firstFlowNode);
    MakeTopNode();
    BuildAndClean(last);
    DisplayMBOM(_rootElement, _topNode);
    _bomBuilt = 1;
    computation.Succeed();
    return _document;
}

void VXMBomGenerator::MakeTopNode() {
    auto top = std::make_unique<VXMFabMBOMNode>(QORBaseUnknown_var(), 0, 0, VXMFabMBOMNode::AT_Top, 1);
    AddMBOMNodeToList(top.get());
    SetTopNode(top.release());
}

void VXMBomGenerator::BuildAndClean(VXMFabFlowNode* iLast) {
    const bool old = _useOldAlgorithm != 0;
    old ? CreateOldMBOM(iLast, _topNode, 1) : CreateMBOM(iLast, _topNode, 1);
    TraceMBOM1();
    TraceMBOM2();
    CleanMBOM_RemoveAssignments();
    TraceMBOM2();
    QORHashDico met(10);
    old ? CleanMBOM_1(_topNode, met) : CleanMBOM_ProcessAssignments();
    TraceMBOM2();
    old ? CleanMBOM_2(_topNode) : CleanMBOM_3(_topNode, met);
    TraceMBOM2();
}

void VXMBomGenerator::MainCheckFlow() {
    if (!_rootObject) {
        return;
    }
    FreeFN();
    FreeMN();
    _counter = 1;
    const VXMFirstItemSearch::Keeping keeping(*_firstItems);
    const StationsKept stations(_stations);
    std::unique_ptr<VXMFabFlowNode> first(CreateFlowNode(_rootObject, 0));
    if (!first) {
        return;
    }
    UpdateFlowNodeLists(first.get());
    _firstFlowNode = first.release();
    CheckFlow(nullptr, _firstFlowNode, 0);
    TraceFlow();
    TraceFlowNodes();
}

QORBaseUnknown_var
VXMBomGenerator::SearchFirstItem(const QORBaseUnknown_var& iItem,
                                 const std::function<std::optional<QORBaseUnknown_var>()>& iFirstPredecessor) {
    if (!iItem) {
        return iItem;
    }
    if (const auto known = _firstItems->Find(iItem)) {
        return *known;
    }
    VXMFirstItemSearch::Step step(*_firstItems, iItem);
    QORBaseUnknown_var first = iItem;
    if (const auto predecessor = iFirstPredecessor()) {
        QORCallDeep([&] { first = GetFirstFlowNode(*predecessor); });
    }
    step.Conclude(first);
    return first;
}

VXMFabFlowNode* VXMBomGenerator::GetLastNodeInFlow(VXMFabFlowNode* iNode) {
    return VXMFlowEnds::Find(iNode);
}

VXMFabFlowNode* VXMBomGenerator::CheckUse(const QORBaseUnknown_var& iObject) {
    if (!iObject) {
        return nullptr;
    }
    QORUnicodeString id;
    id.BuildFromNum(QORModelIdentificator(iObject->GetImpl(0)).GetIntId(), "%d");
    return static_cast<VXMFabFlowNode*>(_flowNodeDico.Locate(id));
}

void VXMBomGenerator::UpdateFlowNodeLists(VXMFabFlowNode* iNode) {
    IncreaseCounter();
    InsertToFlowNodeDico(iNode);
    AppendToFlowNodeList(iNode);
}

void VXMBomGenerator::InsertToFlowNodeDico(VXMFabFlowNode* iNode) {
    if (iNode) {
        _flowNodeDico.Insert(iNode->GetIDString(), iNode);
    }
}

void VXMBomGenerator::AppendToFlowNodeList(VXMFabFlowNode* iNode) {
    _flowNodeList.Append(iNode);
}

void VXMBomGenerator::AddMBOMNodeToList(VXMFabMBOMNode* iNode) {
    if (!iNode || iNode->GetAT() < VXMFabMBOMNode::AT_Top || iNode->GetAT() > VXMFabMBOMNode::AT_Fastener) {
        return;
    }
    _mbomNodeIDs[iNode->GetAT()].Add(iNode->GetID());
    const QORUnicodeString id = iNode->GetIDString();
    const int position = _usedIDs.Locate(id);
    if (position < 1) {
        _usedIDs.Append(id);
        _usedIDCounts.Append(1);
    } else {
        _usedIDCounts.Replace(position, _usedIDCounts[position] + 1);
    }
    // Last, so that a node that couldn't be entered everywhere isn't owned here yet.
    _mbomNodes[iNode->GetAT()].Append(iNode);
}

void VXMBomGenerator::FreeFN() {
    for (void* node : _flowNodeList) {
        delete static_cast<VXMFabFlowNode*>(node);
    }
    _flowNodeList.RemoveAll();
    _flowNodeDico.RemoveAll();
    _firstFlowNode = nullptr;
}

void VXMBomGenerator::FreeMN() {
    for (int type = VXMFabMBOMNode::AT_Top; type <= VXMFabMBOMNode::AT_Fastener; ++type) {
        const VXMFabPlaces& nodes = _mbomNodes[type].GetPlaces();
        for (int place = 0; place < nodes.End(); ++place) {
            delete nodes.At(place);
        }
        _mbomNodes[type].RemoveAll();
        _mbomNodeIDs[type].RemoveAll();
    }
    // What a tree entered goes with it, so that a BOM built anew equals that of a new generator.
    _removedIDs.RemoveAll();
    _usedIDs.RemoveAll();
    _usedIDCounts.RemoveAll();
}
