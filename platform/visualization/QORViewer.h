#pragma once

#include "QORPlatform/dialog/QORDialog.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/toolkit/QORViewerPeer.h"
#include "QORPlatform/visualization/QORIRedrawEvent.h"
#include "QORPlatform/visualization/QORViewpoint.h"
#include "QORPlatform/visualization/QORViewpointEditor.h"

/// Style of a viewer: with the navigation by mouse (turn, move, zoom).
inline constexpr int kQORViewerNavigated = 0x40000;

/// Last argument of a navigation viewer: what the viewer has of its own.
inline constexpr int kQORViewerPlain = 0;
inline constexpr int kQORViewerScene = 8; ///< background, axes and light for a scene in space

/// Where a further viewpoint stands.
inline constexpr int kQORPlacementBehind = 0;
inline constexpr int kQORPlacementInFront = 1;

/// A view onto objects, kept in viewpoints. Answers QORIRedrawEvent.
class QOR_EXPORT QORViewer : public QORDialog, private QORCounted<QORViewer> {
public:
    static constexpr std::string_view kCountName = "QORViewer";

    ~QORViewer() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;

    int GetStyle() const { return _style; }
    int GetOptions() const { return _options; }

    /// The viewpoint that a viewer of space has from the beginning; null for a viewer of a plane, and where the toolkit
    /// can't show space.
    QORViewpoint* GetMain3DViewpoint() const { return _main3DViewpoint; }

    /// Takes a viewpoint over, the caller's reference with it. Negative for null and for one that a viewer has; the
    /// reference is the caller's then. Where it raises, the reference has been taken over.
    QORStatus AddViewpoint(QORViewpoint* iViewpoint, int iPlacement);

    /// Lets a viewpoint go, with all that is shown in it. Negative for null, for one that isn't here, and for the main
    /// viewpoint of space, which stays.
    QORStatus RemoveViewpoint(QORViewpoint* iViewpoint);

    /// Takes an editor over for a viewpoint of this viewer, in place of the one that it had. Negative for null and for
    /// a viewpoint that isn't here; the reference is the caller's then.
    QORStatus SetViewpointEditor(QORViewpoint* iViewpoint, QORViewpointEditor* iEditor);

    int GetViewpointCount() const { return static_cast<int>(_viewpoints.size()); }

    /// The viewpoint at iPosition in the order in which they came, null outside 1 to the count; the placement of a
    /// viewpoint, and its editor, null when it has none or isn't here.
    QORViewpoint* GetViewpoint(int iPosition) const;
    int GetPlacement(const QORViewpoint* iViewpoint) const;
    QORViewpointEditor* GetViewpointEditor(const QORViewpoint* iViewpoint) const;

    /// Width and height of the graphic area in pixels: those of the construction until a peer says otherwise.
    void GetGraphicSize(float& oWidth, float& oHeight) const;
    void SetGraphicSize(float iWidth, float iHeight);

    /// Draws what has changed, or everything anew. Redraw first asks all that is shown whether it has changed, see
    /// QORVisManager::CheckChanges.
    void Draw();
    void Redraw();

    /// Moves the camera of a viewpoint so that all that is shown in it is seen.
    void FitAll(QORViewpoint& iViewpoint);

    /// The pointer of a person is over an object in a viewpoint, or over nothing (null): that becomes the content of
    /// the HSO that is tied to the viewpoint.
    void ReportHover(QORViewpoint& iViewpoint, QORBaseUnknown* iObject);

    /// A person has picked an object in a viewpoint, or nothing (null): that becomes the content of the PSO that is
    /// tied to the viewpoint. iExtend adds it instead, or takes it out when it is in the set.
    void ReportPick(QORViewpoint& iViewpoint, QORBaseUnknown* iObject, bool iExtend = false);

    /// The same for all that a person has drawn a frame around, at once; iExtend adds what isn't in the set.
    void ReportPicks(QORViewpoint& iViewpoint, const std::vector<QORBaseUnknown*>& iObjects, bool iExtend);

    /// The toolkit's side, null where there is none.
    QORViewerPeer* GetPeer() const { return _peer.get(); }

    /// Toolkit for all viewers that are made from now on; null for none. Stays the caller's, who keeps it long enough.
    static void SetToolkit(QORViewerToolkit* iToolkit);

protected:
    QORViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth, int iHeight, int iOptions);

    /// To be called at the end of the constructor of each kind of viewer: false when a toolkit is there and can't show
    /// the viewer.
    bool MakePeer();
    void MakeMain3DViewpoint();

private:
    struct Place {
        QORVar<QORViewpoint> viewpoint;
        int placement;
        QORVar<QORViewpointEditor> editor;
    };

    const Place* FindPlace(const QORViewpoint* iViewpoint) const;

    int _style;
    int _options;
    float _width;
    float _height;
    std::vector<Place> _viewpoints;
    QORViewpoint* _main3DViewpoint = nullptr;
    std::unique_ptr<QORViewerPeer> _peer;
    QORIRedrawEventTie<QORViewer> _redrawEvent{this};
};

/// A viewer onto a plane. Has no viewpoint before one is added.
class QOR_EXPORT QORNavigation2DViewer : public QORViewer {
public:
    /// Style and options are of the values above; width and height in pixels.
    QORNavigation2DViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth, int iHeight,
                          int iOptions);
    ~QORNavigation2DViewer() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};

/// A viewer into space, with a main viewpoint from the beginning unless the toolkit can't show it.
class QOR_EXPORT QORNavigation3DViewer : public QORViewer {
public:
    /// Style and options are of the values above; width and height in pixels.
    QORNavigation3DViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth, int iHeight,
                          int iOptions);
    ~QORNavigation3DViewer() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};
