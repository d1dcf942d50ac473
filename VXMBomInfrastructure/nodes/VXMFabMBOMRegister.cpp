#include "VXMBomInfrastructure/nodes/VXMFabMBOMRegister.h"

#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

void VXMFabMBOMRegister::Append(VXMFabMBOMNode* iNode) {
    iNode->_placeInRegister = _nodes.Append(iNode);
}

int VXMFabMBOMRegister::RemoveValue(VXMFabMBOMNode* iNode) {
    const int place = iNode->_placeInRegister;
    if (_nodes.At(place) != iNode) {
        return -1;
    }
    _nodes.Leave(place);
    return place;
}
