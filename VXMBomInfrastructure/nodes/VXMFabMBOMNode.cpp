#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include "QORPlatform/framework/QORModelIdentificator.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"
#include "VXMBomInfrastructure/model/VXMIMfgAssembly.h"
#include "VXMBomInfrastructure/nodes/VXMFabSiblingIndex.h"

namespace {

constexpr int kWorthAnIndex = 16;

void ReadName(const QORBaseUnknown_var& iProduct, QORUnicodeString& oName) {
    if (const VXMIMfgAssembly_var assembly{iProduct}) {
        oName = assembly->GetName();
    } else if (const QORIProduct_var product{iProduct}) {
        product->GetInstanceName(oName);
    } else if (const QORISPPItem_var item{iProduct}) {
        oName = item->GetName();
    }
}

} // namespace

VXMFabMBOMNode::VXMFabMBOMNode(const QORBaseUnknown_var& iProduct, const int iLevel, const int iNumber,
                               AssignmentType iAssignmentType, const unsigned char iRemovable)
    : _name("not defined"), _level(iLevel), _number(iNumber), _assignmentType(iAssignmentType), _removable(iRemovable) {
    if (!iProduct) {
        _name = "TOPNODE";
        return;
    }
    _product = iProduct;
    ReadName(_product, _name);
    _id = QORModelIdentificator(_product->GetImpl(0)).GetIntId();
    VXMBomViewerTrace.TraPutX("Number: ", _number);
    VXMBomViewerTrace.TraPutX("ID: ", _id);
    VXMBomViewerTrace.TraPut("Name ");
    VXMBomViewerTrace.TraPutLN(_name);
}

VXMFabMBOMNode::~VXMFabMBOMNode() = default;

void VXMFabMBOMNode::AddSuccessor(VXMFabMBOMNode* iNode) {
    if (!iNode) {
        return;
    }
    const int place = _successors.Append(iNode);
    if (iNode->_placedIn) {
        iNode->_isPlaceKnown = false;
    }
    iNode->_placedIn = this;
    iNode->_place = place;
    if (_index) {
        _index->TakeLast();
    }
}

VXMFabMBOMNode* VXMFabMBOMNode::GetSuccessor(int iPosition) {
    CloseGaps();
    return _successors.At(iPosition - 1);
}

void VXMFabMBOMNode::RemoveSuccessor(int iPosition) {
    CloseGaps();
    if (_successors.At(iPosition - 1)) {
        LeavePlace(iPosition - 1);
    }
}

void VXMFabMBOMNode::RemoveSuccessor(VXMFabMBOMNode* iNode) {
    const int place = iNode ? FindPlace(iNode) : _successors.End();
    if (place < _successors.End()) {
        LeavePlace(place);
    }
}

int VXMFabMBOMNode::FindPlace(const VXMFabMBOMNode* iChild) const {
    if (iChild->_isPlaceKnown && iChild->_placedIn == this && _successors.At(iChild->_place) == iChild) {
        return iChild->_place;
    }
    int place = 0;
    while (place < _successors.End() && _successors.At(place) != iChild) {
        ++place;
    }
    return place;
}

void VXMFabMBOMNode::LeavePlace(int iPlace) {
    VXMFabMBOMNode* const child = _successors.At(iPlace);
    _successors.Leave(iPlace);
    if (child->_isPlaceKnown) {
        child->_placedIn = nullptr;
    }
}

void VXMFabMBOMNode::CloseGaps() {
    if (!_successors.HasGaps()) {
        return;
    }
    _index.reset();
    _successors.Close([this](VXMFabMBOMNode& iChild, int iPlace) {
        if (iChild._placedIn == this) {
            iChild._place = iPlace;
        }
    });
}

QORUnicodeString VXMFabMBOMNode::GetIDString() const {
    QORUnicodeString text;
    text.BuildFromNum(_id, "%d");
    return text;
}

VXMFabMBOMNode* VXMFabMBOMNode::FindAssignment(int iID, const VXMFabMBOMNode* iExcept) {
    if (!_index && _successors.End() >= kWorthAnIndex) {
        _index = std::make_unique<VXMFabSiblingIndex>(_successors);
    }
    if (_index) {
        return _index->FindAssignment(iID, iExcept);
    }
    for (int place = 0; place < _successors.End(); ++place) {
        VXMFabMBOMNode* const node = _successors.At(place);
        if (node && node != iExcept && node->_id == iID && node->IsAssignment()) {
            return node;
        }
    }
    return nullptr;
}
