#pragma once

#include "QORPlatform/dom/DOMString.h"
#include "QORPlatform/dom/QORDomError.h"

#include <xercesc/util/XercesDefs.hpp>

#include <utility>

XERCES_CPP_NAMESPACE_BEGIN
class DOMNode;
XERCES_CPP_NAMESPACE_END

class DOM_NodeList;
class QORDomState;

/// Handle on a node of a document. Any handle keeps its whole document alive. Copying one is cheap; a null handle
/// stands for no node, gives null handles and empty texts, and takes no children.
class QOR_EXPORT DOM_Node {
public:
    /// Value of getNodeType for an element.
    static constexpr short ELEMENT_NODE = 1;

    DOM_Node() = default;
    DOM_Node(const DOM_Node& iOther);
    DOM_Node(DOM_Node&& iOther) noexcept
        : _state(std::exchange(iOther._state, nullptr)), _node(std::exchange(iOther._node, nullptr)) {}
    DOM_Node& operator=(const DOM_Node& iOther);
    DOM_Node& operator=(DOM_Node&& iOther) noexcept;
    ~DOM_Node();

    bool isNull() const { return _node == nullptr; }

    DOMString getNodeName() const;
    short getNodeType() const;

    DOM_Node getParentNode() const;
    DOM_Node getFirstChild() const;
    DOM_Node getNextSibling() const;
    DOM_NodeList getChildNodes() const;

    /// Makes iChild, a node of the same document, the last child, and gives it. Raises QORDomError where it can't
    /// stand.
    DOM_Node appendChild(const DOM_Node& iChild);

    friend bool operator==(const DOM_Node& iLeft, const DOM_Node& iRight) { return iLeft._node == iRight._node; }

protected:
    /// Counts a reference of its own on the state.
    DOM_Node(QORDomState* iState, xercesc::DOMNode* iNode);

    QORDomState* State() const { return _state; }
    xercesc::DOMNode* Node() const { return _node; }

private:
    friend class DOM_NodeList;
    friend class DOM_Element;
    friend class QORDomWriter;

    QORDomState* _state = nullptr;
    xercesc::DOMNode* _node = nullptr;
};

/// The child nodes of a node, from index 0. Reading it in order costs the same for each child.
class QOR_EXPORT DOM_NodeList {
public:
    explicit DOM_NodeList(DOM_Node iParent) : _parent(std::move(iParent)) {}

    /// Number of children; walks them once.
    int getLength() const;

    /// The child at iIndex, a null handle outside 0 to the length less 1.
    DOM_Node item(int iIndex) const;

private:
    DOM_Node _parent;
    mutable DOM_Node _lastRead;
    mutable int _lastIndex = -1;
};
