// From the cleaned MBOM to the document and the list of objects.
//
// A node gets an element by its assignment type; one without stands aside for its children, which go under the element
// of the nearest ancestor that has one. The list of objects is filled on the same walk, children before their parent.

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include <vector>

namespace {

/// Tag of a node's element, null for a node without one.
const DOMString* TagOf(const VXMFabMBOMNode& iNode, const QORListValQORUnicodeString& iRemovedIDs) {
    static const DOMString bomNode("BOMNode");
    static const DOMString bomFastener("BOMFastener");
    switch (iNode.GetAssignmentType()) {
    case VXMFabMBOMNode::AT_Create:
    case VXMFabMBOMNode::AT_FirstAssign:
        return &bomNode;
    case VXMFabMBOMNode::AT_Process:
        // Assigned, taken out and assigned again: the product is in the bill though nothing brings it in first.
        return iRemovedIDs.Locate(iNode.GetIDString()) >= 1 ? &bomNode : nullptr;
    case VXMFabMBOMNode::AT_Fastener:
        return &bomFastener;
    default:
        return nullptr;
    }
}

} // namespace

void VXMBomGenerator::DisplayMBOM(DOM_Element iElement, VXMFabMBOMNode* iNode) {
    static const DOMString displayName("DisplayName");
    struct Frame {
        VXMFabMBOMNode* node;
        DOM_Element element; // under which the node's children go
        bool isShown;
        int next = 1;
    };
    std::vector<Frame> path;
    if (iNode) {
        path.push_back({.node = iNode, .element = iElement, .isShown = false});
    }
    while (!path.empty()) {
        Frame& frame = path.back();
        VXMFabMBOMNode* const child = frame.node->GetSuccessor(frame.next++);
        if (!child) {
            if (frame.isShown) {
                _previewObjects.Append(frame.node->GetProduct());
            }
            path.pop_back();
            continue;
        }
        DOM_Element element = frame.element;
        const DOMString* const tag = TagOf(*child, _removedIDs);
        if (tag) {
            element = _document.createElement(*tag);
            frame.element.appendChild(element);
            element.setAttribute(displayName, DOMString(static_cast<const char*>(child->GetUName())));
        }
        path.push_back({.node = child, .element = std::move(element), .isShown = tag != nullptr});
    }
}
