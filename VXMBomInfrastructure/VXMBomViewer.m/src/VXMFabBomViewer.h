#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/frame/QORFrmWindow.h"
#include "QORPlatform/text/QORUnicodeString.h"
#include "VXMBomInfrastructure/VXMExport.h"
#include "VXMBomInfrastructure/model/QORISPPActivity.h"

#include <memory>

class DOM_Document;
class QORNavigBox;
class QORVisManager;
class VXMBomGenerator;

/// The window of a BOM: a tree of the document and, by the display mode, a view of its items in space. It follows the
/// process plan while it is open.
///
/// Whoever makes the window lets it go (see QORCommand); editor and platform objects outlive it or tell that they
/// don't. All operations run on the thread of the dialog loop. What the model raises passes through; while the window
/// ends it is noted in the trace, and the window goes on ending.
class VXM_EXPORT VXMFabBomViewer : public QORFrmWindow {
public:
    /// What the window shows: mode 1 the tree, 2 the items, 3 both.
    static constexpr int kTreeOnly = 1;
    static constexpr int kItemsOnly = 2;
    static constexpr int kTreeAndItems = 3;

    /// Opens the window on iRoot, an activity or else a product; on anything else it stays empty. A mode that isn't 1,
    /// 2 or 3 ends the run, as does a toolkit that gives no frame, or no viewpoint for the items.
    VXMFabBomViewer(const QORString& iName, QORFrmEditor* iEditor, QORBaseUnknown_var& iRoot, int iDisplayMode);
    ~VXMFabBomViewer() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
    const char* GetResourceFilename(int iLevel) override;

    /// Builds the tree box beside the viewer, which may be null, with iRoot as its root where the display mode has a
    /// tree. A depth of -1 has no limit; iAllowDuplicates 0 shows no object twice; iExtensionMode other than 0 is
    /// handed to the controller. Null, with no root in the box, when the tree settings can't be had. The box belongs to
    /// the window's frame.
    virtual QORNavigBox* CreateNavigBox(QORViewer* iViewer, QORFrmEditor* iEditor, QORBaseUnknown_var iRoot,
                                        const char* iName, int iAllowDuplicates, int iDepth, int iWidth, int iHeight,
                                        int iExtensionMode);

    /// The generator of the window's BOM, null on a root that there is none for. It stays the window's.
    VXMBomGenerator* GetGenerator() const { return _generator.get(); }

    // Title.

    /// The window's name as far as it fits its width, at 10 pixels a character: whole, or its two ends around "...".
    void GetDisplayName(QORUnicodeString& oDisplayName);

    /// Called when the window's size has changed: sets the title.
    void OnResize(QORCommand* iSender, QORNotification* iNotification, void* iClientData);

    // Following the plan.

    /// Subscribes to the changes of the current document's root activity. Without one the window doesn't follow.
    void AddCallBacks();

    /// Ends the subscription; 1 at all times.
    unsigned char RemoveCallbacks();

    /// Called with each change of the plan: rebuilds the BOM where the kind of change concerns it, and brings the shown
    /// items in line when their number has changed.
    void OnActivityCallback(const char* iEvent, void* iPublisher, QORNotification* iNotification, void* iClientData,
                            long iHandle);

    /// Builds the BOM anew and gives the box its new root.
    void UpdateBom();

    /// Finds the root activity of the document that is current now; *oActivity gets it with a reference for the caller,
    /// or is left alone.
    void GetRootActivity(QORISPPActivity** oActivity);

    /// iFirst when iSecond is a physical activity, else null; iSecond when it is a control-flow link, else null.
    QORBaseUnknown* IsACaseOfActivityDeleted(QORBaseUnknown* iFirst, QORBaseUnknown* iSecond);
    QORBaseUnknown* IsACaseOfLinkDeleted(QORBaseUnknown* iFirst, QORBaseUnknown* iSecond);

    // Items in space.

    /// Shows all objects of the BOM for the first time.
    void MBOMItems3DView();

    /// Shows those of the objects that can be seen, and ties the editor's selection sets to the viewpoint.
    void Visualize(const QORListValQORBaseUnknown_var& iObjects);

    /// Ends the showing of those of the objects that can be seen, and unties the selection sets.
    void RemoveBOMItems(const QORListValQORBaseUnknown_var iObjects);

    /// Called once before the items are first shown; the viewpoint stays as the viewer made it.
    void SetViewpoint();

    /// Does nothing.
    void ViewerIsDeleted(QORCommand* iSender, QORNotification* iNotification, void* iClientData);

private:
    void MakeViewer();
    void MakeGenerator(const QORBaseUnknown_var& iRoot);
    static QORBaseUnknown_var MakeTreeObject(const DOM_Document& iDocument);
    bool HasTree() const { return (_iDisplayMode & 1) != 0; }
    bool HasItems() const { return _iDisplayMode >= kItemsOnly; }
    bool ApplySettings(QORNavigBox& ioBox, int iAllowDuplicates, int iDepth, int iExtensionMode);
    QORVar<QOREventSubscriber> FindPublisher();
    template <class Act>
    void ForEachShowable(const QORListValQORBaseUnknown_var& iObjects, Act iAct);

    QORViewer* _viewer = nullptr;
    QORDlgFrame* _windowFrame = nullptr;
    QORViewpoint* _viewpoint = nullptr;
    QORUnicodeString _windowName;
    std::unique_ptr<VXMBomGenerator> _generator;
    long _callbackHandle = -1;
    QORNavigBox* _navigBox = nullptr;
    QORListValQORBaseUnknown_var _previewObjects;
    QORVisManager* _visManager = nullptr;
    int _iDisplayMode;
    QORVar<QOREventSubscriber> _publisher; // of the subscription, whatever document is current by now
};
