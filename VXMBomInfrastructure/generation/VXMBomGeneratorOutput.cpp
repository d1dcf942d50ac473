// From the cleaned MBOM to the document and the list of objects.
//
// A node gets an element by its assignment type; one without stands aside for its children, which go under the element
// of the nearest ancestor that has one. The list of objects is filled on the same walk, children before their parent.

#include "QORPlatform/framework/QORDeepStack.h"
#include "QORPlatform/toolkit/QORProgress.h"
#include "VXMBomInfrastructure/generation/VXMBomGeneratorState.h"
#include "VXMBomInfrastructure/generation/VXMBomRecorder.h"

namespace {

/// Tag of a node's element, null for a node without one.
const DOMString* TagOf(const VXMFabMBOMNode& iNode, const VXMBomTree& iTree) {
    static const DOMString bomNode("BOMNode");
    static const DOMString bomFastener("BOMFastener");
    switch (iNode.GetAssignmentType()) {
    case VXMFabMBOMNode::AT_Create:
    case VXMFabMBOMNode::AT_FirstAssign:
        return &bomNode;
    case VXMFabMBOMNode::AT_Process:
        // Assigned, taken out and assigned again: the product is in the bill though nothing brings it in first.
        return iTree.WasRemoved(iNode.GetID()) ? &bomNode : nullptr;
    case VXMFabMBOMNode::AT_Fastener:
        return &bomFastener;
    default:
        return nullptr;
    }
}

} // namespace

void VXMBomGenerator::DisplayMBOM(DOM_Element iElement, VXMFabMBOMNode* iNode) {
    if (iNode) {
        QORDomWriter writer(_state->GetResult().document, "DisplayName");
        _state->Display(writer, QORDomWriter::PlaceOf(iElement), *iNode);
    }
}

void VXMBomGenerator::State::Display(QORDomWriter& ioWriter, QORDomWriter::Place iPlace, const VXMFabMBOMNode& iNode) {
    const int count = iNode.GetNumberOfSuccessors();
    for (int position = 1; position <= count; ++position) {
        const VXMFabMBOMNode& child = *iNode.GetSuccessor(position);
        const DOMString* const tag = TagOf(child, computation->tree);
        QORDomWriter::Place place = iPlace;
        if (tag) {
            QORWork::Step();
            if (VXMBomRecorder* const listener = computation->recorder) {
                listener->NodeShown(child);
            }
            place = ioWriter.Append(iPlace, *tag, child.PeekName());
        }
        if (child.GetNumberOfSuccessors() > 0) {
            QORCallDeep([&] { Display(ioWriter, place, child); });
        }
        if (tag) {
            GetResult().previewObjects.Append(child.GetProduct());
        }
    }
}
