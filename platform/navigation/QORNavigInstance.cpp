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

QORNavigInstance::QORNavigInstance(QORNavigBox& iBox, int iDepth, const QORBaseUnknown_var& iTreeObject, int iOrdinal)
    : _box(&iBox), _node(QORVar<QORNavigNode>::Adopt(new QORNavigNode(iTreeObject))), _depth(iDepth),
      _ordinal(iOrdinal) {
    _node->_instance = this;
}

QORNavigInstance::~QORNavigInstance() {
    _node->_instance = nullptr;
}

QORNavigInstance* QORNavigInstance::GetChild(int iPosition) const {
    return iPosition >= 1 && iPosition <= GetChildCount() ? _children[iPosition - 1].Get() : nullptr;
}

QORNavigInstance* QORNavigInstance::FindChild(int iOrdinal) const {
    const auto place = std::lower_bound(
        _children.begin(), _children.end(), iOrdinal,
        [](const QORVar<QORNavigInstance>& iChild, int iWanted) { return iChild->_ordinal < iWanted; });
    return place != _children.end() && (*place)->_ordinal == iOrdinal ? place->Get() : nullptr;
}

bool QORNavigInstance::MayExpand() const {
    return GetBox() && GetBox()->AllowsOpeningAt(_depth) && (!_objects || !_children.empty() || GetPendingCount() > 0);
}

QORStatus QORNavigInstance::Expand() {
    const QORVar<QORNavigInstance> self(this);
    if (!GetBox() || _position == 0 || !GetBox()->AllowsOpeningAt(_depth)) {
        return QOR_FAILED;
    }
    if (_expanded) {
        return QOR_OK;
    }
    if (!Fill()) {
        return QOR_FAILED;
    }
    _expanded = true;
    GetBox()->OpenChanged(*this);
    return QOR_OK;
}

/// Asks the tree object what is below it, unless that was done; false when the instance leaves the tree meanwhile.
bool QORNavigInstance::Fill() {
    if (!_objects && GetBox()) {
        Objects objects = Ask(GetTreeObject(), &QORINavigateObject::GetChildren, &QORINavigateObjectPPR::GetChildren);
        if (!objects) {
            objects = std::make_shared<const QORListValQORBaseUnknown_var>();
        }
        int tried = 0;
        Instances made = MakeNext(objects, tried, GetBox() ? GetBox()->GetPortion() : 0);
        if (GetBox() && !_objects) {
            _objects = std::move(objects);
            _triedUpTo = tried;
            TakeIn(std::move(made));
        }
    }
    return GetBox() != nullptr;
}

int QORNavigInstance::GetPendingCount() const {
    return _objects ? _objects->Size() - _triedUpTo : 0;
}

int QORNavigInstance::Fetch(int iCount) {
    const QORVar<QORNavigInstance> self(this);
    if (!GetBox() || GetPendingCount() == 0 || iCount <= 0) {
        return 0;
    }
    const int before = _triedUpTo;
    int tried = before;
    Instances made = MakeNext(_objects, tried, iCount);
    if (!GetBox() || _triedUpTo != before) {
        return 0;
    }
    const int count = static_cast<int>(made.size());
    _triedUpTo = tried;
    TakeIn(std::move(made));
    return count;
}

QORNavigInstance::Instances QORNavigInstance::MakeNext(const Objects& iObjects, int& ioTried, int iCount) {
    return GetBox() ? GetBox()->MakeInstances(*iObjects, ioTried, iCount, _depth + 1) : Instances();
}

/// Takes in children behind those that are there.
void QORNavigInstance::TakeIn(Instances iMade) {
    if (iMade.empty()) {
        return;
    }
    const int before = GetChildCount();
    const int after = before + static_cast<int>(iMade.size());
    _children.reserve(after); // whoever is told of rows that come can count on them
    GetBox()->RowsAboutToCome(this, before + 1, after);
    if (!GetBox()) {
        return;
    }
    int position = before;
    for (auto& child : iMade) {
        child->PlaceBelow(this, ++position);
        _children.push_back(std::move(child));
    }
    GetBox()->RowsCame(this, before + 1, after);
}

void QORNavigInstance::PlaceBelow(QORNavigInstance* iParent, int iPosition) {
    GetBox()->Entered(*this);
    _parent = iParent;
    _position = iPosition;
}

void QORNavigInstance::Collapse() {
    if (_expanded && GetBox()) {
        _expanded = false;
        GetBox()->OpenChanged(*this);
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
    const QORVar<QORNavigInstance> self(this);
    if (GetBox() && _position > 0) {
        GetBox()->TakeOut(_parent, _position, _position);
    }
}

void QORNavigInstance::TakeOut(Instances& ioSiblings, int iFirst, int iLast) {
    const bool isAll = iFirst == 1 && iLast == static_cast<int>(ioSiblings.size());
    const auto first = ioSiblings.begin() + (iFirst - 1);
    Instances leaving;
    if (isAll) {
        leaving.swap(ioSiblings); // a box that ends can't count on memory
    } else {
        leaving.assign(first, ioSiblings.begin() + iLast);
        ioSiblings.erase(first, first + (iLast - iFirst + 1));
    }
    for (int i = iFirst - 1; i < static_cast<int>(ioSiblings.size()); ++i) {
        ioSiblings[i]->_position = i + 1;
    }
    for (const QORVar<QORNavigInstance>& instance : leaving) {
        instance->LeaveBox();
    }
    for (const QORVar<QORNavigInstance>& instance : leaving) {
        instance->DropBelow();
    }
}

/// Takes an instance and all below it out of the box. A person may have opened any number of levels, so this goes by
/// the places of the instances and not by calls in calls.
void QORNavigInstance::LeaveBox() {
    const QORNavigInstance* const top = this;
    QORNavigInstance* instance = this;
    while (instance) {
        if (QORNavigBox* const box = instance->GetBox()) {
            box->Left(*instance);
        }
        instance->_box = QORWatch<QORNavigBox>();
        instance->_expanded = false;
        instance = instance->_children.empty() ? instance->NextBelow(*top) : instance->_children.front().Get();
    }
    _parent = nullptr;
    _position = 0;
}

/// The instance that follows on this one and what is below it, null for the last below iTop.
QORNavigInstance* QORNavigInstance::NextBelow(const QORNavigInstance& iTop) const {
    const QORNavigInstance* instance = this;
    while (instance != &iTop && instance->_position == instance->_parent->GetChildCount()) {
        instance = instance->_parent;
    }
    return instance == &iTop ? nullptr : instance->_parent->_children[instance->_position].Get();
}

/// Lets all go that is below an instance that has left, the lowest first.
void QORNavigInstance::DropBelow() {
    QORNavigInstance* instance = this;
    while (instance != this || !_children.empty()) {
        if (!instance->_children.empty()) {
            instance = instance->_children.back().Get();
            continue;
        }
        instance = instance->_parent;
        const QORVar<QORNavigInstance> lowest = std::move(instance->_children.back());
        instance->_children.pop_back();
        lowest->_parent = nullptr;
        lowest->_position = 0;
    }
}
