#include "QORPlatform/visualization/QORVisManager.h"

#include "QORPlatform/visualization/QORI3DGeoVisu.h"
#include "QORPlatform/visualization/QORViewer.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string>
#include <type_traits>
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

/// What tells shape and place of an object from others of the same object.
std::size_t PrintOf(QORBaseUnknown& iObject) {
    const QORI3DGeoVisu_var visible(&iObject);
    QORGeoShape shape;
    QORGeoPlace place;
    if (visible) {
        visible->GetShape(shape);
        visible->GetPlace(place);
    }
    std::size_t print = shape.kind;
    const auto add = [&print](const auto& iValue) {
        print = print * 1099511628211U + std::hash<std::decay_t<decltype(iValue)>>()(iValue);
    };
    for (const double* numbers : {shape.sizes, place.moved, place.turned}) {
        std::for_each_n(numbers, 3, add);
    }
    add(std::string(shape.file));
    add(std::string(shape.part));
    return print;
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
    if (const View* const known = FindView(*iViewpoint); known && known->places.contains(path)) {
        return QOR_OK;
    }
    const std::size_t print = PrintOf(*path.back()); // asks the model, which may raise
    View& view = _views[iViewpoint];
    view.showings.emplace_back(path.begin(), path.end());
    view.places.emplace(path, std::prev(view.showings.end()));
    if (++view.paths[path.back()] == 1) {
        Enter(*path.back(), *iViewpoint, print);
    }
    return QOR_OK;
}

/// The first path that shows the object in the viewpoint has come.
void QORVisManager::Enter(QORBaseUnknown& iObject, QORViewpoint& iViewpoint, std::size_t iPrint) {
    Looks& looks = _looks[&iObject];
    if (looks.views++ == 0) {
        looks.revision = ++_lastRevision;
        looks.print = iPrint;
    }
    if (QORViewerPeer* const peer = PeerOf(iViewpoint)) {
        peer->ObjectShown(iViewpoint, iObject);
    }
}

/// The last path that shows the object in a viewpoint has gone.
void QORVisManager::Leave(QORBaseUnknown& iObject) {
    const auto place = _looks.find(&iObject);
    if (--place->second.views == 0) {
        _looks.erase(place);
    }
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
    QORBaseUnknown& object = *ended.back().Get();
    view->second.showings.erase(place->second);
    view->second.places.erase(place);
    const auto paths = view->second.paths.find(&object);
    const bool wasLast = --paths->second == 0;
    if (wasLast) {
        view->second.paths.erase(paths);
        Leave(object);
    }
    DropIfEmpty(*iViewpoint);
    if (QORViewerPeer* const peer = wasLast ? PeerOf(*iViewpoint) : nullptr) {
        peer->ObjectHidden(*iViewpoint, object);
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

long QORVisManager::GetRevision(QORBaseUnknown* iObject) const {
    const auto place = _looks.find(iObject ? iObject->GetImpl(0) : nullptr);
    return place == _looks.end() ? 0 : place->second.revision;
}

void QORVisManager::ObjectChanged(QORBaseUnknown* iObject) {
    const QORBaseUnknown_var object(iObject ? iObject->GetImpl(0) : nullptr);
    const auto place = _looks.find(object.Get());
    if (place == _looks.end()) {
        return;
    }
    place->second.print = PrintOf(*object.Get());
    const long revision = place->second.revision = ++_lastRevision;
    std::vector<QORViewpoint*> showing;
    for (const auto& [viewpoint, view] : _views) {
        if (view.paths.contains(object.Get())) {
            showing.push_back(viewpoint);
        }
    }
    for (QORViewpoint* viewpoint : showing) {
        if (QORViewerPeer* const peer = PeerOf(*viewpoint)) {
            peer->ObjectChanged(*viewpoint, *object.Get(), revision);
        }
    }
}

void QORVisManager::CheckChanges(QORViewpoint& iViewpoint) {
    for (const QORBaseUnknown_var& object : GetShown(iViewpoint)) {
        const auto place = _looks.find(object.Get());
        if (place != _looks.end() && place->second.print != PrintOf(*object.Get())) {
            ObjectChanged(object.Get());
        }
    }
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
    if (!forgotten.empty()) {
        for (const auto& [object, paths] : forgotten.mapped().paths) {
            Leave(*object);
        }
    }
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
