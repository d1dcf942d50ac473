#include "QORPlatform/visualization/QORVisManager.h"

#include "QORPlatform/visualization/QORViewer.h"

#include <iterator>
#include <utility>

namespace {

bool AnswersAll(const QORBaseUnknown_var& iObject, const QORListInterfaceID& iInterfaces) {
    for (const QORInterfaceID* interface : iInterfaces) {
        void* answered = nullptr;
        if (!interface || iObject->QueryInterface(*interface, &answered) < 0) {
            return false;
        }
        static_cast<QORBaseUnknown*>(answered)->Release();
    }
    return true;
}

QORViewerPeer* PeerOf(const QORViewpoint& iViewpoint) {
    return iViewpoint.GetViewer() ? iViewpoint.GetViewer()->GetPeer() : nullptr;
}

void TellSelection(QORViewpoint& iViewpoint) {
    if (QORViewerPeer* const peer = PeerOf(iViewpoint)) {
        peer->SelectionChanged(iViewpoint);
    }
}

} // namespace

std::size_t QORVisManager::PathHash::operator()(const Path& iPath) const noexcept {
    std::size_t hash = iPath.size();
    for (const QORBaseUnknown* object : iPath) {
        hash = hash * 31 + std::hash<const void*>()(object);
    }
    return hash;
}

QORVisManager* QORVisManager::GetVisManager() {
    // Never destroyed: viewpoints and sets sign off whenever they end.
    static auto* const manager = new QORVisManager();
    return manager;
}

const QORVisManager::View* QORVisManager::FindView(const QORViewpoint& iViewpoint) const {
    const auto place = _views.find(const_cast<QORViewpoint*>(&iViewpoint));
    return place == _views.end() ? nullptr : &place->second;
}

QORStatus QORVisManager::AttachTo(const QORPathElement* iPath, QORViewpoint* iViewpoint,
                                  const QORListInterfaceID& iInterfaces, QORCommand* iCommand, int iLayer,
                                  int iPriority, int iLevel, int iMode, int iVariant) {
    if (!iPath || iPath->GetSize() == 0 || !iViewpoint || !iCommand || iViewpoint->GetViewer() != iCommand) {
        return QOR_FAILED;
    }
    if (iLayer != 0 || iPriority != 0 || iLevel != 0 || iMode != 0 || iVariant != 0) {
        return QOR_FAILED;
    }
    if (!AnswersAll(iPath->GetElement(iPath->GetSize()), iInterfaces)) {
        return QOR_NO_INTERFACE;
    }
    const Path path = iPath->GetImplementations();
    View& view = _views[iViewpoint];
    if (view.places.contains(path)) {
        return QOR_OK;
    }
    view.showings.emplace_back(path.begin(), path.end());
    view.places.emplace(path, std::prev(view.showings.end()));
    if (QORViewerPeer* const peer = PeerOf(*iViewpoint)) {
        peer->ObjectShown(*iViewpoint, *path.back());
    }
    return QOR_OK;
}

QORStatus QORVisManager::DetachFrom(const QORPathElement* iPath, QORViewpoint* iViewpoint, const QORListInterfaceID&,
                                    int iVariant) {
    const auto view = _views.find(iViewpoint);
    if (!iPath || iVariant != 0 || view == _views.end()) {
        return QOR_FAILED;
    }
    const auto place = view->second.places.find(iPath->GetImplementations());
    if (place == view->second.places.end()) {
        return QOR_FAILED;
    }
    const Showing ended = std::move(*place->second);
    view->second.showings.erase(place->second);
    view->second.places.erase(place);
    DropIfEmpty(*iViewpoint);
    if (QORViewerPeer* const peer = PeerOf(*iViewpoint)) {
        peer->ObjectHidden(*iViewpoint, *ended.back().Get());
    }
    return QOR_OK;
}

void QORVisManager::Tie(QORViewpoint& iViewpoint, SetKind iKind, QORXSO* iSet) {
    QORXSO*& tied = _views[&iViewpoint].sets[iKind];
    if (std::exchange(tied, iSet) != iSet) {
        DropIfEmpty(iViewpoint);
        TellSelection(iViewpoint);
    }
}

QORStatus QORVisManager::Untie(QORViewpoint* iViewpoint, SetKind iKind) {
    const View* const view = iViewpoint ? FindView(*iViewpoint) : nullptr;
    if (!view || !view->sets[iKind]) {
        return QOR_FAILED;
    }
    Tie(*iViewpoint, iKind, nullptr);
    return QOR_OK;
}

QORStatus QORVisManager::AttachHSOTo(QORXSO* iSet, QORViewpoint* iViewpoint) {
    if (!iSet || !iViewpoint) {
        return QOR_FAILED;
    }
    Tie(*iViewpoint, HSO, iSet);
    return QOR_OK;
}

QORStatus QORVisManager::AttachPSOTo(QORXSO* iSet, QORViewpoint* iViewpoint) {
    if (!iSet || !iViewpoint) {
        return QOR_FAILED;
    }
    Tie(*iViewpoint, PSO, iSet);
    return QOR_OK;
}

QORStatus QORVisManager::DetachHSOFrom(QORViewpoint* iViewpoint) {
    return Untie(iViewpoint, HSO);
}

QORStatus QORVisManager::DetachPSOFrom(QORViewpoint* iViewpoint) {
    return Untie(iViewpoint, PSO);
}

QORListValQORBaseUnknown_var QORVisManager::GetShown(const QORViewpoint& iViewpoint) const {
    QORListValQORBaseUnknown_var shown;
    if (const View* const view = FindView(iViewpoint)) {
        for (const Showing& showing : view->showings) {
            shown.Append(showing.back());
        }
    }
    return shown;
}

int QORVisManager::GetShownCount(const QORViewpoint& iViewpoint) const {
    const View* const view = FindView(iViewpoint);
    return view ? static_cast<int>(view->showings.size()) : 0;
}

bool QORVisManager::IsShown(QORBaseUnknown* iObject, const QORViewpoint& iViewpoint) const {
    const View* const view = FindView(iViewpoint);
    return iObject && view && view->places.contains(Path{iObject->GetImpl(0)});
}

QORXSO* QORVisManager::GetHSO(const QORViewpoint& iViewpoint) const {
    const View* const view = FindView(iViewpoint);
    return view ? view->sets[HSO] : nullptr;
}

QORXSO* QORVisManager::GetPSO(const QORViewpoint& iViewpoint) const {
    const View* const view = FindView(iViewpoint);
    return view ? view->sets[PSO] : nullptr;
}

void QORVisManager::DropIfEmpty(const QORViewpoint& iViewpoint) {
    const View* const view = FindView(iViewpoint);
    if (view && view->showings.empty() && !view->sets[HSO] && !view->sets[PSO]) {
        _views.erase(const_cast<QORViewpoint*>(&iViewpoint));
    }
}

void QORVisManager::ForgetViewpoint(QORViewpoint& iViewpoint) {
    // Taken out first: with the last references objects end, which may come back here.
    const auto forgotten = _views.extract(&iViewpoint);
}

std::vector<QORViewpoint*> QORVisManager::ViewpointsWith(const QORXSO& iSet) const {
    std::vector<QORViewpoint*> found;
    for (const auto& [viewpoint, view] : _views) {
        if (view.sets[HSO] == &iSet || view.sets[PSO] == &iSet) {
            found.push_back(viewpoint);
        }
    }
    return found;
}

void QORVisManager::ForgetSet(const QORXSO& iSet) {
    for (QORViewpoint* viewpoint : ViewpointsWith(iSet)) {
        for (const SetKind kind : {HSO, PSO}) {
            const View* const view = FindView(*viewpoint);
            if (view && view->sets[kind] == &iSet) {
                Tie(*viewpoint, kind, nullptr);
            }
        }
    }
}

void QORVisManager::SetChanged(const QORXSO& iSet) {
    for (QORViewpoint* viewpoint : ViewpointsWith(iSet)) {
        TellSelection(*viewpoint);
    }
}
