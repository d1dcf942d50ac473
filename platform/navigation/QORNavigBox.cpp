#include "QORPlatform/navigation/QORNavigBox.h"

#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/navigation/QORINavigElement.h"
#include "QORPlatform/navigation/QORINavigateObject.h"
#include "QORPlatform/navigation/QORINavigateObjectPPR.h"

#include <utility>

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORNavigBox::ClassMeta();

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
    _peer.reset();
    RemoveAllRoots();
    // Late types that nobody extends are placed each time a node is asked for its class.
    QORDictionary::Get().DropUnusedPlaceholders();
}

QORMetaClass* QORNavigBox::ClassMeta() {
    static auto* const meta =
        new QORMetaClass("QORNavigBox", Implementation, QORDialog::ClassMeta(), "QORNull", "QORPlatform", nullptr);
    return meta;
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
    QORListValQORBaseUnknown_var objects;
    objects.Append(iRoot);
    const QORWatch<QORNavigBox> self(this);
    Instances made = MakeInstances(objects, 0);
    if (made.empty() || !self.Get()) {
        return QOR_FAILED;
    }
    _roots.push_back(std::move(made.front()));
    _roots.back()->PlaceBelow(nullptr, GetRootCount());
    RootsChanged();
    return QOR_OK;
}

void QORNavigBox::RemoveAllRoots() {
    if (_roots.empty()) {
        return;
    }
    while (!_roots.empty()) {
        QORNavigInstance::TakeOut(_roots, GetRootCount());
    }
    RootsChanged();
}

QORNavigBox::Instances QORNavigBox::MakeInstances(const QORListValQORBaseUnknown_var& iObjects, int iDepth) {
    const QORWatch<QORNavigBox> self(this);
    const bool once = _controller && _controller->IsNoDuplicate();
    std::unordered_set<QORBaseUnknown*> met;
    Instances made;
    made.reserve(iObjects.Size());
    for (const QORBaseUnknown_var& object : iObjects) {
        if (!IsTreeObject(object) || (once && (IsShown(object) || !met.insert(object.Impl()).second))) {
            continue;
        }
        made.push_back(QORVar<QORNavigInstance>::Adopt(new QORNavigInstance(*this, iDepth, object)));
        made.back()->Update();
        if (!self.Get()) {
            return {};
        }
    }
    return made;
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
    if (_selected.erase(&iInstance) > 0) {
        SelectionChanged();
    }
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

bool QORNavigBox::IsSelected(const QORNavigInstance& iInstance) const {
    return _selected.contains(const_cast<QORNavigInstance*>(&iInstance));
}

void QORNavigBox::ReportExpand(QORNavigInstance& iInstance) {
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
    const QORVar<QORNavigInstance> held(&iInstance);
    const bool extend = iExtend && AllowsSeveral();
    if (extend) {
        SelectInstance(iInstance, !IsSelected(iInstance));
    } else if (GetSelection() != std::vector{&iInstance}) {
        _selected = {&iInstance};
        SelectionChanged();
    }
    const QORINavigElement_var element(held->GetNode());
    if (!element) {
        return;
    }
    if (extend) {
        element->ProcessAfterExtSelect();
    } else {
        element->ProcessAfterSelect();
    }
}

void QORNavigBox::ReportAction(QORNavigInstance& iInstance) {
    if (!Holds(iInstance)) {
        return;
    }
    const QORVar<QORNavigInstance> held(&iInstance);
    if (const QORINavigElement_var element(held->GetNode()); element) {
        element->ProcessAfterAction();
    }
}

void QORNavigBox::RootsChanged() {
    if (_peer) {
        _peer->RootsChanged();
    }
}

void QORNavigBox::ChildrenChanged(QORNavigInstance& iInstance) {
    if (_peer) {
        _peer->ChildrenChanged(iInstance);
    }
}

void QORNavigBox::NodeChanged(QORNavigInstance& iInstance) {
    if (_peer) {
        _peer->NodeChanged(iInstance);
    }
}

void QORNavigBox::SelectionChanged() {
    if (_peer) {
        _peer->SelectionChanged();
    }
}

void QORNavigBox::SettingsChanged() {
    if (_peer) {
        _peer->SettingsChanged();
    }
}
