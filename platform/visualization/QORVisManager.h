#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/collections/QORRawColl.h"
#include "QORPlatform/visualization/QORViewpoint.h"
#include "QORPlatform/visualization/QORXSO.h"

#include <list>
#include <unordered_map>
#include <vector>

class QORCommand;
class QORViewerPeer;

/// Identifiers of the interfaces that a showing goes by.
using QORListInterfaceID = QORRawColl<const QORInterfaceID*>;

/// Knows which objects are shown in which viewpoint, and which selection sets are tied to it: the HSO (what the pointer
/// is over) and the PSO (what was picked). Viewers ask it when they paint, and their peers are told of changes.
///
/// What is shown in a viewpoint is a set of paths, equal when the implementations on them are. The manager counts on
/// the objects as long as they are shown. With a viewpoint goes all that it knew of it; a set that ends is untied.
class QOR_EXPORT QORVisManager {
public:
    /// The one of the process.
    static QORVisManager* GetVisManager();
    QORVisManager(const QORVisManager&) = delete;
    QORVisManager& operator=(const QORVisManager&) = delete;

    /// Shows the object that the path names in iViewpoint of the viewer iCommand; one that is shown stays as it is.
    /// Negative, with nothing changed, for a null argument or an empty path, when the viewpoint isn't of that viewer,
    /// when the object doesn't answer each of the interfaces, and when a number asks for a variant: there are none yet,
    /// each is 0.
    QORStatus AttachTo(const QORPathElement* iPath, QORViewpoint* iViewpoint, const QORListInterfaceID& iInterfaces,
                       QORCommand* iCommand, int iLayer, int iPriority, int iLevel, int iMode, int iVariant);

    /// Ends the showing, however often the path was attached. Negative when it isn't shown there, and for a variant.
    QORStatus DetachFrom(const QORPathElement* iPath, QORViewpoint* iViewpoint, const QORListInterfaceID& iInterfaces,
                         int iVariant);

    /// Tie a set to a viewpoint in place of the one that was tied; tying it again is fine. Negative when one of the two
    /// is null.
    QORStatus AttachHSOTo(QORXSO* iSet, QORViewpoint* iViewpoint);
    QORStatus AttachPSOTo(QORXSO* iSet, QORViewpoint* iViewpoint);

    /// Untie what is tied. Negative when nothing is.
    QORStatus DetachHSOFrom(QORViewpoint* iViewpoint);
    QORStatus DetachPSOFrom(QORViewpoint* iViewpoint);

    /// What is shown in a viewpoint, as the implementations that the paths name, in the order of attaching.
    QORListValQORBaseUnknown_var GetShown(const QORViewpoint& iViewpoint) const;
    int GetShownCount(const QORViewpoint& iViewpoint) const;

    /// Number that stands for shape and place of an object as they are now, for whoever makes something from them:
    /// another one, and one that no object had before, since the object is shown and each time a change was told. 0 for
    /// what is shown nowhere.
    long GetRevision(QORBaseUnknown* iObject) const;

    /// Shape or place of an object are others, or what they refer to is: the viewers that show it are told, with the
    /// new revision.
    void ObjectChanged(QORBaseUnknown* iObject);

    /// Tells the same of all objects shown in a viewpoint that give another shape or place than when they were last
    /// looked at. Costs in proportion to their number.
    void CheckChanges(QORViewpoint& iViewpoint);

    /// Whether the object is shown in the viewpoint by a path of its own, without others outside it.
    bool IsShown(QORBaseUnknown* iObject, const QORViewpoint& iViewpoint) const;

    /// The sets that are tied to a viewpoint, null where there is none. No reference passes to the caller.
    QORXSO* GetHSO(const QORViewpoint& iViewpoint) const;
    QORXSO* GetPSO(const QORViewpoint& iViewpoint) const;

private:
    friend class QORViewer;
    friend class QORViewpoint;
    friend class QORXSO;

    using Path = std::vector<QORBaseUnknown*>;
    using Showing = std::vector<QORBaseUnknown_var>;
    struct PathHash {
        std::size_t operator()(const Path& iPath) const noexcept;
    };
    struct View {
        std::list<Showing> showings;
        std::unordered_map<Path, std::list<Showing>::iterator, PathHash> places;
        std::unordered_map<QORBaseUnknown*, int> paths; // number of them by the object that they name
        QORXSO* sets[2] = {nullptr, nullptr};
    };
    struct Looks {
        int views; // that show the object
        long revision;
        std::size_t print; // of shape and place
    };
    enum SetKind { HSO, PSO };

    QORVisManager() = default;
    void Enter(QORBaseUnknown& iObject, QORViewpoint& iViewpoint, std::size_t iPrint);
    void Leave(QORBaseUnknown& iObject);
    const View* FindView(const QORViewpoint& iViewpoint) const;
    void Tie(QORViewpoint& iViewpoint, SetKind iKind, QORXSO* iSet);
    QORStatus Untie(QORViewpoint* iViewpoint, SetKind iKind);
    void DropIfEmpty(const QORViewpoint& iViewpoint);

    void ForgetViewpoint(QORViewpoint& iViewpoint);
    void ForgetSet(const QORXSO& iSet);
    void SetChanged(const QORXSO& iSet);
    std::vector<QORViewpoint*> ViewpointsWith(const QORXSO& iSet) const;

    std::unordered_map<QORViewpoint*, View> _views;
    std::unordered_map<const QORBaseUnknown*, Looks> _looks;
    long _lastRevision = 0;
};
