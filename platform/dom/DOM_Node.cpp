#include "QORPlatform/dom/DOM_Node.h"

#include "QORPlatform/dom/QORDomCall.h"
#include "QORPlatform/dom/QORDomState.h"

#include <xercesc/dom/DOMNode.hpp>

DOM_Node::DOM_Node(QORDomState* iState, xercesc::DOMNode* iNode) : _state(iNode ? iState : nullptr), _node(iNode) {
    if (_state) {
        _state->AddRef();
    }
}

DOM_Node::DOM_Node(const DOM_Node& iOther) : DOM_Node(iOther._state, iOther._node) {}

DOM_Node& DOM_Node::operator=(const DOM_Node& iOther) {
    DOM_Node copy(iOther);
    std::swap(_state, copy._state);
    std::swap(_node, copy._node);
    return *this;
}

DOM_Node& DOM_Node::operator=(DOM_Node&& iOther) noexcept {
    DOM_Node taken(std::move(iOther)); // what this one held is let go at once
    std::swap(_state, taken._state);
    std::swap(_node, taken._node);
    return *this;
}

DOM_Node::~DOM_Node() {
    if (_state) {
        _state->Release();
    }
}

DOMString DOM_Node::getNodeName() const {
    return _node ? DOMString(std::u16string(_node->getNodeName())) : DOMString();
}

short DOM_Node::getNodeType() const {
    return _node ? static_cast<short>(_node->getNodeType()) : short{0};
}

DOM_Node DOM_Node::getParentNode() const {
    return {_state, _node ? _node->getParentNode() : nullptr};
}

DOM_Node DOM_Node::getFirstChild() const {
    return {_state, _node ? _node->getFirstChild() : nullptr};
}

DOM_Node DOM_Node::getNextSibling() const {
    return {_state, _node ? _node->getNextSibling() : nullptr};
}

DOM_NodeList DOM_Node::getChildNodes() const {
    return DOM_NodeList(*this);
}

DOM_Node DOM_Node::appendChild(const DOM_Node& iChild) {
    if (!_node || !iChild._node) {
        return {};
    }
    if (iChild == *this) {
        throw QORDomError("a node can't stand in itself"); // the XML library sees to all other ancestors
    }
    return QORDomCall([&]() -> DOM_Node { return {_state, _node->appendChild(iChild._node)}; });
}

int DOM_NodeList::getLength() const {
    int length = 0;
    const xercesc::DOMNode* child = _parent._node ? _parent._node->getFirstChild() : nullptr;
    for (; child; child = child->getNextSibling()) {
        ++length;
    }
    return length;
}

DOM_Node DOM_NodeList::item(int iIndex) const {
    if (iIndex < 0) {
        return {};
    }
    if (_lastIndex < 0 || iIndex < _lastIndex || _lastRead.isNull()) {
        _lastRead = _parent.getFirstChild();
        _lastIndex = 0;
    }
    for (; _lastIndex < iIndex && !_lastRead.isNull(); ++_lastIndex) {
        _lastRead = _lastRead.getNextSibling();
    }
    return _lastRead;
}
