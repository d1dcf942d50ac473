// Tree objects and extensions are foreign code: while they are asked, the box may be emptied or end. So an instance
// holds itself meanwhile, makes what it makes aside, and looks whether it is still in a tree before it enters the
// result.

#include "QORPlatform/navigation/QORNavigInstance.h"

#include "QORPlatform/navigation/QORINavigModify.h"
#include "QORPlatform/navigation/QORINavigateObject.h"
#include "QORPlatform/navigation/QORINavigateObjectPPR.h"
#include "QORPlatform/navigation/QORNavigBox.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

/// Asks the tree object through whichever of the two interfaces it answers; null when it has nothing to say.
template <class List>
std::unique_ptr<List> Ask(QORBaseUnknown* iTreeObject, List* (QORINavigateObject::*iPlain)(),
                          List* (QORINavigateObjectPPR::*iPPR)()) {
    if (const QORINavigateObject_var plain(iTreeObject); plain) {
        return std::unique_ptr<List>((plain.Get()->*iPlain)());
    }
    const QORINavigateObjectPPR_var ppr(iTreeObject);
    return std::unique_ptr<List>(ppr ? (ppr.Get()->*iPPR)() : nullptr);
}

} // namespace

QORNavigInstance::QORNavigInstance(QORNavigBox& iBox, int iDepth, const QORBaseUnknown_var& iTreeObject)
    : _box(&iBox), _node(QORVar<QORNavigNode>::Adopt(new QORNavigNode(iTreeObject))), _depth(iDepth) {
    _node->_instance = this;
}

QORNavigInstance::~QORNavigInstance() {
    _node->_instance = nullptr;
}

QORNavigInstance* QORNavigInstance::GetChild(int iPosition) const {
    return iPosition >= 1 && iPosition <= GetChildCount() ? _children[iPosition - 1].Get() : nullptr;
}

bool QORNavigInstance::MayExpand() const {
    return GetBox() && GetBox()->AllowsOpeningAt(_depth) && (!_filled || !_children.empty());
}

QORStatus QORNavigInstance::Expand() {
    const QORVar<QORNavigInstance> self(this);
    if (!GetBox() || _position == 0 || !GetBox()->AllowsOpeningAt(_depth)) {
        return QOR_FAILED;
    }
    if (_expanded) {
        return QOR_OK;
    }
    if (!_filled) {
        Fill();
    }
    if (!GetBox()) {
        return QOR_FAILED;
    }
    _expanded = true;
    GetBox()->ChildrenChanged(*this);
    return QOR_OK;
}

void QORNavigInstance::Fill() {
    const auto objects = Ask(GetTreeObject(), &QORINavigateObject::GetChildren, &QORINavigateObjectPPR::GetChildren);
    Instances made = GetBox() && objects ? GetBox()->MakeInstances(*objects, _depth + 1) : Instances();
    if (!GetBox() || _filled) {
        return;
    }
    _filled = true;
    _children = std::move(made);
    int position = 0;
    for (const auto& child : _children) {
        child->PlaceBelow(this, ++position);
    }
}

void QORNavigInstance::PlaceBelow(QORNavigInstance* iParent, int iPosition) {
    _parent = iParent;
    _position = iPosition;
    GetBox()->Entered(*this);
}

void QORNavigInstance::Collapse() {
    if (_expanded && GetBox()) {
        _expanded = false;
        GetBox()->ChildrenChanged(*this);
    }
}

void QORNavigInstance::Select(bool iOn) {
    if (GetBox() && _position > 0) {
        GetBox()->SelectInstance(*this, iOn);
    }
}

bool QORNavigInstance::IsSelected() const {
    return GetBox() && GetBox()->IsSelected(*this);
}

void QORNavigInstance::SetMarked(bool iOn) {
    if (_marked != iOn) {
        _marked = iOn;
        NodeChanged();
    }
}

void QORNavigInstance::Update() {
    const QORVar<QORNavigInstance> self(this);
    const auto texts =
        Ask(GetTreeObject(), &QORINavigateObject::GetIdentificators, &QORINavigateObjectPPR::GetIdentificators);
    _node->SetLabel(texts ? (*texts)[1] : QORUnicodeString());
    if (const QORINavigModify_var modify(_node); modify) {
        modify->UpdateElem(this);
    }
}

QORUnicodeString QORNavigInstance::GetShortHelp() {
    const QORINavigModify_var modify(_node);
    if (!modify) {
        return _node->GetLabel();
    }
    QORUnicodeString help;
    modify->ModifyShortHelp(help);
    return help;
}

void QORNavigInstance::NodeChanged() {
    if (GetBox() && _position > 0) {
        GetBox()->NodeChanged(*this);
    }
}

void QORNavigInstance::Remove() {
    if (!GetBox() || _position == 0) {
        return;
    }
    const QORWatch<QORNavigBox> box = _box;
    const QORVar<QORNavigInstance> parent(_parent);
    TakeOut(parent ? parent->_children : box.Get()->_roots, _position);
    if (!box.Get()) {
        return;
    }
    if (parent) {
        box.Get()->ChildrenChanged(*parent.Get());
    } else {
        box.Get()->RootsChanged();
    }
}

void QORNavigInstance::TakeOut(Instances& ioSiblings, int iPosition) {
    // A stack of its own, since a person may have opened any number of levels.
    Instances leaving;
    leaving.push_back(std::move(ioSiblings[iPosition - 1]));
    ioSiblings.erase(ioSiblings.begin() + (iPosition - 1));
    for (int i = iPosition - 1; i < static_cast<int>(ioSiblings.size()); ++i) {
        ioSiblings[i]->_position = i + 1;
    }
    while (!leaving.empty()) {
        const QORVar<QORNavigInstance> instance = std::move(leaving.back());
        leaving.pop_back();
        std::move(instance->_children.begin(), instance->_children.end(), std::back_inserter(leaving));
        instance->_children.clear();
        if (QORNavigBox* const box = instance->GetBox()) {
            box->Left(*instance.Get());
        }
        instance->_parent = nullptr;
        instance->_position = 0;
        instance->_expanded = false;
        instance->_box = QORWatch<QORNavigBox>();
    }
}
