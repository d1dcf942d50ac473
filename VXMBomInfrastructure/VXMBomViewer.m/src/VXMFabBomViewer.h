#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/frame/QORFrmWindow.h"
#include "VXMBomInfrastructure/VXMExport.h"
#include "VXMBomInfrastructure/model/QORISPPActivity.h"

#include <memory>

class QORNavigBox;
class VXMBomGenerator;
struct VXMFabBomViewerState;

/// The window of a BOM: a tree of the document and, by the display mode, a view of its items in space. It follows the
/// process plan while it is open.
///
/// What it needs of the host:
/// - An editor (QORFrmEditor), so that the tree has its settings. Document and selection sets are those of the editor
///   that is the current one at the time, which need not be the window's: make the window's editor the current one
///   before the window is made, and whenever a person activates it (ReportActivate).
/// - A document that is a kind of "QORProcess" and answers QORInit, whose container of that interface's name answers
///   QORISPPProcessContainer. The first entry there answers QORISPPActivityRoot and QORISPPActivity: the root activity.
/// - A publisher, which the root activity gives through QORISPPActivityModificationEvents. The window follows
///   notifications of class "QORSPPActivityNotification" (see QORSPPActivityNotificationDispatcher), whatever root it
///   stands on. The kinds 3 (an activity came), 17 (one went or moved), 18 and 27 (a link came, went), 29 (items or
///   outputs of an activity or a resource are others) and 39 (an item itself is another) rebuild the bill; after one of
///   any kind the objects of the bill are compared with those shown in space, by their number alone.
/// - Items that answer QORI3DGeoVisu where they are to be seen in space.
/// Without document or publisher the window stands as it was built.
///
/// Each notification outside a group rebuilds at once; those of a group (QOREventSubscriber::BeginGroup) rebuild once
/// together, when it ends. A change that is told while the window rebuilds, by a model that publishes when it is asked,
/// is followed by one more rebuild after that, and by no third. Rows that stand for the same stay opened and selected.
///
/// Whoever makes the window lets it go (see QORCommand); editor and platform objects outlive it or tell that they
/// don't. All operations run on the thread of the dialog loop. What the model raises passes through, and the window
/// goes on showing the last bill; while the window ends it is noted in the trace, and the window goes on ending. A
/// rebuild that a person cancels (see QORProgress) leaves the last bill too, and nothing passes through. A window that
/// was closed rebuilds no more.
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
    VXMBomGenerator* GetGenerator() const;

    /// The tree box, null when it couldn't be set up. Its rows lead to the objects of the model behind them and back,
    /// see QORNavigBox::GetRows.
    QORNavigBox* GetNavigBox() const;

    /// Whether the last rebuild was cancelled or raised an error: the window shows an earlier bill.
    bool IsOutOfDate() const;

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
    std::unique_ptr<VXMFabBomViewerState> _state;
};
