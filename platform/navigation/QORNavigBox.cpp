#include "QORPlatform/navigation/QORNavigBox.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/navigation/QORINavigElement.h"
#include "QORPlatform/navigation/QORINavigateObject.h"
#include "QORPlatform/navigation/QORINavigateObjectPPR.h"
#include "QORPlatform/navigation/QORNavigMemory.h"

#include <utility>

namespace {

QORNavigBoxToolkit* boxToolkit = nullptr;

bool IsTreeObject(const QORBaseUnknown_var& iObject) {
    return QORINavigateObject_var(iObject) || QORINavigateObjectPPR_var(iObject);
}

} // namespace

QORNavigBox::QORNavigBox(QORDialog* iParent, const QORString& iName, QORFrmEditor* iEditor, int iGraphStyle,
                         const QORUnicodeString& iHeading, int iWidth, int iHeight, QORViewer* iViewer,
                         QOR2DViewpoint* iViewpoint)
    : QORDialog(new QORDlgFrame(iParent, iName), iName), _editor(iEditor), _viewer(iViewer), _viewpoint(iViewpoint),
      _graphStyle(iGraphStyle), _heading(iHeading),
      _controller(iEditor ? std::make_unique<QORNavigController>(*this) : nullptr),
      _graphViewer(iViewer ? std::make_unique<QORGraphViewer>(*this) : nullptr) {
    SetRectDimensions({0, 0, iWidth, iHeight});
    if (boxToolkit) {
        _peer = boxToolkit->MakePeer(*this);
    }
}

QORNavigBox::~QORNavigBox() {
    // Nobody is told of rows that end with the box.
    _peer.reset();
    _selected.clear();
    RemoveAllRoots();
    // Late types that nobody extends are placed each time a node is asked for its class.
    QORDictionary::Get().DropUnusedPlaceholders();
}

QORMetaClass* QORNavigBox::ClassMeta() {
    return QORRegisterClass<QORNavigBox>("QORNavigBox", kQORPlatform, &QORDialog::ClassMeta);
}

QORMetaClass* QORNavigBox::GetMetaObject() const {
    return ClassMeta();
}

void QORNavigBox::SetToolkit(QORNavigBoxToolkit* iToolkit) {
    boxToolkit = iToolkit;
}

QORNavigInstance* QORNavigBox::GetRoot(int iPosition) const {
    return iPosition >= 1 && iPosition <= GetRootCount() ? _roots[iPosition - 1].Get() : nullptr;
}

QORStatus QORNavigBox::AddRoot(const QORBaseUnknown_var& iRoot) {
    const QORWatch<QORNavigBox> self(this);
    QORVar<QORNavigInstance> made;
    if (IsTreeObject(iRoot) && !(ShowsOnce() && IsShown(iRoot))) {
        made = MakeInstance(iRoot, 0, _rootsAdded + 1);
    }
    if (!made || !self.Get()) {
        return QOR_FAILED;
    }
    const int position = GetRootCount() + 1;
    _roots.reserve(position);
    RowsAboutToCome(nullptr, position, position);
    ++_rootsAdded;
    made->PlaceBelow(nullptr, position);
    _roots.push_back(std::move(made));
    RowsCame(nullptr, position, position);
    return QOR_OK;
}

void QORNavigBox::RemoveAllRoots() {
    _rows.reset();
    _rootsAdded = 0;
    if (!_roots.empty()) {
        TakeOut(nullptr, 1, GetRootCount());
    }
    if (_roots.empty()) {
        _shown.clear(); // of what was about to come and didn't
    }
}

bool QORNavigBox::IsShown(const QORBaseUnknown_var& iObject) const {
    const auto place = _shown.find(iObject.Impl());
    return place != _shown.end() && place->second > 0;
}

/// Takes rows out, below iParent or among the roots, with all that is below them.
void QORNavigBox::TakeOut(QORNavigInstance* iParent, int iFirst, int iLast) {
    const QORWatch<QORNavigBox> self(this);
    const QORVar<QORNavigInstance> parent(iParent);
    if (_peer) {
        _peer->RowsAboutToGo(iParent, iFirst, iLast);
    }
    QORNavigInstance::TakeOut(parent ? parent->_children : _roots, iFirst, iLast);
    if (!self.Get()) {
        return;
    }
    if (_peer) {
        _peer->RowsGone(iParent, iFirst, iLast);
    }
    TellSelection();
}

QORVar<QORNavigInstance> QORNavigBox::MakeInstance(const QORBaseUnknown_var& iObject, int iDepth, int iOrdinal) {
    auto made = QORVar<QORNavigInstance>::Adopt(new QORNavigInstance(*this, iDepth, iObject, iOrdinal));
    _shown.try_emplace(iObject.Impl(), 0); // so that what comes needs no memory any more
    made->Update();                        // whoever is asked may end the box
    return made;
}

/// Instances for the tree objects behind ioTried, which moves on, up to iCount instances. None when the box ends
/// meanwhile.
QORNavigBox::Instances QORNavigBox::MakeInstances(const QORListValQORBaseUnknown_var& iObjects, int& ioTried,
                                                  int iCount, int iDepth) {
    const QORWatch<QORNavigBox> self(this);
    std::unordered_set<QORBaseUnknown*> met;
    Instances made;
    while (ioTried < iObjects.Size() && static_cast<int>(made.size()) < iCount) {
        const QORBaseUnknown_var& object = iObjects[++ioTried];
        const bool isRepeat = ShowsOnce() && (IsShown(object) || !met.insert(object.Impl()).second);
        if (!isRepeat && IsTreeObject(object)) {
            made.push_back(MakeInstance(object, iDepth, ioTried));
        }
        if (!self.Get()) {
            return {};
        }
    }
    return made;
}

bool QORNavigBox::ShowsOnce() const {
    return _controller && _controller->IsNoDuplicate();
}

bool QORNavigBox::Holds(const QORNavigInstance& iInstance) const {
    return iInstance.GetBox() == this && iInstance.GetPosition() > 0;
}

bool QORNavigBox::AllowsOpeningAt(int iDepth) const {
    const int limit = _controller ? _controller->GetDepth() : kQORDepthUnlimited;
    return limit < 0 || iDepth < limit;
}

bool QORNavigBox::AllowsSeveral() const {
    return _controller && _controller->GetExtensionMode() == kQORExtensionMultiple;
}

void QORNavigBox::Entered(const QORNavigInstance& iInstance) {
    ++_shown[iInstance.GetTreeObject()];
}

void QORNavigBox::Left(QORNavigInstance& iInstance) {
    const auto place = _shown.find(iInstance.GetTreeObject());
    if (--place->second == 0) {
        _shown.erase(place);
    }
    _isSelectionToBeTold |= _selected.erase(&iInstance) > 0;
}

void QORNavigBox::SelectInstance(QORNavigInstance& iInstance, bool iOn) {
    if (iOn == IsSelected(iInstance)) {
        return;
    }
    if (!iOn) {
        _selected.erase(&iInstance);
    } else {
        if (!AllowsSeveral()) {
            _selected.clear();
        }
        _selected.insert(&iInstance);
    }
    SelectionChanged();
}

void QORNavigBox::SetSelection(const std::vector<QORNavigInstance*>& iInstances) {
    std::unordered_set<QORNavigInstance*> selected;
    for (QORNavigInstance* instance : iInstances) {
        if (instance && Holds(*instance)) {
            if (!AllowsSeveral()) {
                selected.clear();
            }
            selected.insert(instance);
        }
    }
    if (selected != _selected) {
        _selected = std::move(selected);
        SelectionChanged();
    }
}

bool QORNavigBox::IsSelected(const QORNavigInstance& iInstance) const {
    return _selected.contains(const_cast<QORNavigInstance*>(&iInstance));
}

void QORNavigBox::ReportExpand(QORNavigInstance& iInstance) {
    const QORHandling handling(this);
    const QORVar<QORNavigInstance> held(&iInstance);
    if (held->Expand() < 0) {
        return;
    }
    if (const QORINavigElement_var element(held->GetNode()); element) {
        element->ProcessAfterExpand();
    }
}

void QORNavigBox::ReportSelect(QORNavigInstance& iInstance, bool iExtend) {
    if (!Holds(iInstance)) {
        return;
    }
    const QORHandling handling(this);
    const QORVar<QORNavigInstance> held(&iInstance);
    const bool extend = iExtend && AllowsSeveral();
    if (extend) {
        SelectInstance(iInstance, !IsSelected(iInstance));
    } else {
        SetSelection({&iInstance});
    }
    TellSelected(*held.Get(), extend);
}

void QORNavigBox::ReportSelection(const std::vector<QORNavigInstance*>& iInstances) {
    const QORHandling handling(this);
    const QORWatch<QORNavigBox> self(this);
    const auto before = _selected;
    SetSelection(iInstances);
    QORNavigInstance::Instances selected;
    for (QORNavigInstance* instance : iInstances) {
        if (self.Get() && instance && IsSelected(*instance) && !before.contains(instance)) {
            selected.emplace_back(instance);
        }
    }
    for (const auto& instance : selected) {
        TellSelected(*instance.Get(), selected.size() > 1);
    }
}

/// Lets the node's extension follow.
void QORNavigBox::TellSelected(QORNavigInstance& iInstance, bool iExtends) {
    const QORINavigElement_var element(iInstance.GetNode());
    if (!element) {
        return;
    }
    if (iExtends) {
        element->ProcessAfterExtSelect();
    } else {
        element->ProcessAfterSelect();
    }
}

void QORNavigBox::ReportAction(QORNavigInstance& iInstance) {
    if (!Holds(iInstance)) {
        return;
    }
    const QORHandling handling(this);
    const QORVar<QORNavigInstance> held(&iInstance);
    if (const QORINavigElement_var element(held->GetNode()); element) {
        element->ProcessAfterAction();
    }
}

void QORNavigBox::RowsAboutToCome(QORNavigInstance* iParent, int iFirst, int iLast) {
    if (_peer) {
        _peer->RowsAboutToCome(iParent, iFirst, iLast);
    }
}

void QORNavigBox::RowsCame(QORNavigInstance* iParent, int iFirst, int iLast) {
    if (_peer) {
        _peer->RowsCame(iParent, iFirst, iLast);
    }
}

void QORNavigBox::OpenChanged(QORNavigInstance& iInstance) {
    if (_peer) {
        _peer->OpenChanged(iInstance);
    }
}

void QORNavigBox::NodeChanged(QORNavigInstance& iInstance) {
    if (_peer) {
        _peer->NodeChanged(iInstance);
    }
}

void QORNavigBox::SelectionChanged() {
    _isSelectionToBeTold = true;
    TellSelection();
}

/// Tells that other rows are selected, unless that was told, or a refill is under way.
void QORNavigBox::TellSelection() {
    if (_refills > 0 || !std::exchange(_isSelectionToBeTold, false)) {
        return;
    }
    if (_peer) {
        _peer->SelectionChanged();
    }
    Publish(SELECTION_CHANGED(), nullptr);
}

void QORNavigBox::SettingsChanged() {
    if (_peer) {
        _peer->SettingsChanged();
    }
}
