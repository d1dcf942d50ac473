#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include "QORPlatform/framework/QORModelIdentificator.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/index/VXMPlaces.h"
#include "VXMBomInfrastructure/index/VXMPool.h"
#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"
#include "VXMBomInfrastructure/model/VXMIMfgAssembly.h"
#include "VXMBomInfrastructure/nodes/VXMProductName.h"

/// What a node is. Everything but the links is fixed at construction.
class VXM_HIDDEN VXMFabMBOMNode::State : private QORCounted<State> {
public:
    static constexpr std::string_view kCountName = "VXMFabMBOMNode";

    State(int iLevel, int iNumber, AssignmentType iAssignmentType, unsigned char iRemovable)
        : level(iLevel), number(iNumber), assignmentType(iAssignmentType), removable(iRemovable) {}

    static void* operator new(std::size_t) { return VXMPool<sizeof(State)>::Get().Take(); }
    static void operator delete(void* iState) { VXMPool<sizeof(State)>::Get().GiveBack(iState); }

    VXMFabMBOMNode* predecessor = nullptr;
    VXMPlaces successors;
    QORUnicodeString name;
    QORBaseUnknown_var product;
    int level;
    int id = -1;
    int number;
    AssignmentType assignmentType;
    unsigned char removable;

private:
    friend class QORCounted<State>;
};

QORUnicodeString VXMNameOfProduct(const QORBaseUnknown_var& iProduct) {
    QORUnicodeString name("not defined");
    if (!iProduct) {
        name = "TOPNODE";
    } else if (const VXMIMfgAssembly_var assembly{iProduct}) {
        name = assembly->GetName();
    } else if (const QORIProduct_var product{iProduct}) {
        product->GetInstanceName(name);
    } else if (const QORISPPItem_var item{iProduct}) {
        name = item->GetName();
    }
    return name;
}

VXMFabMBOMNode::VXMFabMBOMNode(const QORBaseUnknown_var& iProduct, const int iLevel, const int iNumber,
                               AssignmentType iAssignmentType, const unsigned char iRemovable)
    : _state(std::make_unique<State>(iLevel, iNumber, iAssignmentType, iRemovable)) {
    _state->name = VXMNameOfProduct(iProduct);
    if (!iProduct) {
        return;
    }
    _state->product = iProduct;
    _state->id = QORModelIdentificator(_state->product->GetImpl(0)).GetIntId();
    VXMBomViewerTrace.TraPutX("Number: ", _state->number);
    VXMBomViewerTrace.TraPutX("ID: ", _state->id);
    VXMBomViewerTrace.TraPut("Name ");
    VXMBomViewerTrace.TraPutLN(_state->name);
}

VXMFabMBOMNode::~VXMFabMBOMNode() = default;

void VXMFabMBOMNode::SetPredecessor(VXMFabMBOMNode* iNode) {
    _state->predecessor = iNode;
}

void VXMFabMBOMNode::RemovePredecessor() {
    _state->predecessor = nullptr;
}

VXMFabMBOMNode* VXMFabMBOMNode::GetPredecessor() const {
    return _state->predecessor;
}

void VXMFabMBOMNode::AddSuccessor(VXMFabMBOMNode* iNode) {
    if (iNode) {
        _state->successors.Append(iNode);
    }
}

void VXMFabMBOMNode::AddFirst(VXMFabMBOMNode& iChild) {
    _state->successors.Append(&iChild, VXMPlaces::Entry::First);
}

int VXMFabMBOMNode::GetNumberOfSuccessors() const {
    return _state->successors.Size();
}

VXMFabMBOMNode* VXMFabMBOMNode::GetSuccessor(int iPosition) const {
    return _state->successors[iPosition];
}

void VXMFabMBOMNode::RemoveSuccessor(int iPosition) {
    _state->successors.RemovePosition(iPosition);
}

void VXMFabMBOMNode::RemoveSuccessor(VXMFabMBOMNode* iNode) {
    _state->successors.RemoveValue(iNode);
}

QORString VXMFabMBOMNode::GetName() const {
    return QORString(static_cast<const char*>(_state->name));
}

QORUnicodeString VXMFabMBOMNode::GetUName() const {
    return _state->name;
}

const char* VXMFabMBOMNode::PeekName() const {
    return _state->name;
}

int VXMFabMBOMNode::GetNumber() const {
    return _state->number;
}

int VXMFabMBOMNode::GetLevel() const {
    return _state->level;
}

int VXMFabMBOMNode::GetID() const {
    return _state->id;
}

QORUnicodeString VXMFabMBOMNode::GetIDString() const {
    QORUnicodeString text;
    text.BuildFromNum(_state->id, "%d");
    return text;
}

QORBaseUnknown_var VXMFabMBOMNode::GetProduct() const {
    return _state->product;
}

VXMFabMBOMNode::AssignmentType VXMFabMBOMNode::GetAssignmentType() const {
    return _state->assignmentType;
}

VXMFabMBOMNode::AssignmentType VXMFabMBOMNode::GetAT() const {
    return _state->assignmentType;
}

bool VXMFabMBOMNode::IsAssignment() const {
    return _state->assignmentType == AT_FirstAssign || _state->assignmentType == AT_Process;
}

unsigned char VXMFabMBOMNode::IsRemovable() const {
    return _state->removable;
}
