#pragma once

#include "QORPlatform/dialog/QORDlgFrame.h"
#include "QORPlatform/frame/QORFrmEditor.h"
#include "QORPlatform/navigation/QORGraphViewer.h"
#include "QORPlatform/navigation/QORNavigController.h"
#include "QORPlatform/navigation/QORNavigInstance.h"
#include "QORPlatform/navigation/QORNavigRows.h"
#include "QORPlatform/toolkit/QORNavigBoxPeer.h"
#include "QORPlatform/visualization/QORViewer.h"
#include "QORPlatform/visualization/QORViewpoint.h"

#include <limits>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>

/// Style of the painted graph.
inline constexpr int kQORGraphTree = 0; ///< indented rows, one below the other

/// Size of a portion: all children at once.
inline constexpr int kQORPortionAll = std::numeric_limits<int>::max();

class QORNavigMemory;

/// The tree box: shows tree objects (see QORINavigateObject) as nodes that a person opens, selects and acts on.
///
/// For each tree object that is shown the box makes an instance with a node; for a root when it is added, below that
/// when a person opens the node above, and never earlier. The box stands in a frame of its own and ends with it. It
/// publishes the event SELECTION_CHANGED whenever other rows are selected.
class QOR_EXPORT QORNavigBox : public QORDialog, private QORCounted<QORNavigBox> {
public:
    static constexpr std::string_view kCountName = "QORNavigBox";

    /// Makes the box's frame as a child of iParent (not null), and the box in it. iHeading stands above the tree.
    /// Without an editor the box can be looked at only and has no controller; without a viewer it has no graph viewer.
    /// The box watches editor and viewer and keeps neither; a null iViewpoint leaves the choice of a viewpoint to the
    /// viewer.
    QORNavigBox(QORDialog* iParent, const QORString& iName, QORFrmEditor* iEditor, int iGraphStyle,
                const QORUnicodeString& iHeading, int iWidth, int iHeight, QORViewer* iViewer,
                QOR2DViewpoint* iViewpoint);
    ~QORNavigBox() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// The frame that the box stands in, null when it has left it.
    QORDlgFrame* GetBoxFrame() const { return static_cast<QORDlgFrame*>(GetParent()); }

    QORNavigController* GetController() const { return _controller.get(); }
    QORGraphViewer* GetGraphViewer() const { return _graphViewer.get(); }
    QORFrmEditor* GetEditor() const { return _editor.Get(); }
    QORViewer* GetViewer() const { return _viewer.Get(); }
    QOR2DViewpoint* GetViewpoint() const { return _viewpoint.Get(); }
    int GetGraphStyle() const { return _graphStyle; }
    const QORUnicodeString& GetHeading() const { return _heading; }

    /// Shows iRoot as the last root, closed. Negative for null, for what answers neither interface of tree objects, and
    /// for an object that is shown when the controller wants none twice. What the object raises passes through, with
    /// nothing changed. The box counts on the object as long as it is shown.
    QORStatus AddRoot(const QORBaseUnknown_var& iRoot);

    /// Takes all roots out, with all that is below them.
    void RemoveAllRoots();

    /// The roots in their order, null outside 1 to the count.
    int GetRootCount() const { return static_cast<int>(_roots.size()); }
    QORNavigInstance* GetRoot(int iPosition) const;

    /// Opens and ends a refill, in which the roots are taken out and others come. At its end what stands for the same
    /// as before is opened, selected and marked as it was, and, where the graph viewer is anchored, scrolled to where
    /// it was seen; rows say what that is, and a box without them begins anew. In between nobody is told of selections.
    /// A refill in a refill is part of it.
    void BeginRefill();
    void EndRefill();

    /// What tells the rows of the tree that the box has by now, opened or not; null for none, as at first, and to be
    /// set anew with the roots. Kept as long as it is set.
    void SetRows(std::shared_ptr<QORNavigRows> iRows) { _rows = std::move(iRows); }
    QORNavigRows* GetRows() const { return _rows.get(); }

    /// The row of an instance in this box, and the instance of a row, null as long as that isn't made.
    QORNavigRows::Row GetRow(const QORNavigInstance& iInstance) const;
    QORNavigInstance* GetInstance(QORNavigRows::Row iRow) const;

    /// Implementation of the object of the model behind an instance, or of its tree object where the box has no rows.
    QORBaseUnknown_var GetObject(const QORNavigInstance& iInstance) const;

    /// Opens all above a row and scrolls it into view. Gives its instance, null where it can't be opened down to it.
    QORNavigInstance* Reveal(QORNavigRows::Row iRow);

    /// Number of children that opening a node makes at once, the rest being left to Fetch; kQORPortionAll at first.
    void SetPortion(int iPortion) { _portion = iPortion; }
    int GetPortion() const { return _portion; }

    /// The selected instances, in no order.
    std::vector<QORNavigInstance*> GetSelection() const { return {_selected.begin(), _selected.end()}; }

    /// Selects these and nothing else, at once; the last of them where the controller allows only one. What is in no
    /// tree, or another one, is left out.
    void SetSelection(const std::vector<QORNavigInstance*>& iInstances);

    /// Name of the event, published with no notification.
    static const char* SELECTION_CHANGED() { return "QORNavigBoxSelectionChanged"; }

    /// Whether an object is shown anywhere in the box.
    bool IsShown(const QORBaseUnknown_var& iObject) const;

    /// What a person does; the node's extension is told afterwards. Nothing happens for what has left the tree
    /// meanwhile. iExtend adds the node to the selection, or takes it out of it, where the controller allows more than
    /// one; a click on what is selected keeps it selected otherwise.
    void ReportExpand(QORNavigInstance& iInstance);
    void ReportCollapse(QORNavigInstance& iInstance) { iInstance.Collapse(); }
    void ReportSelect(QORNavigInstance& iInstance, bool iExtend);

    /// A person has selected these and nothing else: a range, or all that is seen. See SetSelection.
    void ReportSelection(const std::vector<QORNavigInstance*>& iInstances);
    void ReportAction(QORNavigInstance& iInstance);

    /// The toolkit's side, null where there is none.
    QORNavigBoxPeer* GetPeer() const { return _peer.get(); }

    /// Toolkit for all boxes that are made from now on; null for none. Stays the caller's, who keeps it long enough.
    static void SetToolkit(QORNavigBoxToolkit* iToolkit);

private:
    friend class QORGraphViewer;
    friend class QORNavigController;
    friend class QORNavigInstance;
    friend class QORNavigMemory;
    using Instances = QORNavigInstance::Instances;

    bool Holds(const QORNavigInstance& iInstance) const;
    bool AllowsOpeningAt(int iDepth) const;
    bool AllowsSeveral() const;
    bool ShowsOnce() const;
    std::vector<int> OrdinalsTo(QORNavigRows::Row iRow) const;
    QORNavigInstance* FindRoot(int iOrdinal) const;
    QORVar<QORNavigInstance> MakeChild(QORNavigInstance* iParent, int iOrdinal);
    QORVar<QORNavigInstance> MakeInstance(const QORBaseUnknown_var& iObject, int iDepth, int iOrdinal);
    Instances MakeInstances(const QORListValQORBaseUnknown_var& iObjects, int& ioTried, int iCount, int iDepth);
    void TakeOut(QORNavigInstance* iParent, int iFirst, int iLast);
    void Entered(const QORNavigInstance& iInstance);
    void Left(QORNavigInstance& iInstance);

    void SelectInstance(QORNavigInstance& iInstance, bool iOn);
    bool IsSelected(const QORNavigInstance& iInstance) const;

    void RowsAboutToCome(QORNavigInstance* iParent, int iFirst, int iLast);
    void RowsCame(QORNavigInstance* iParent, int iFirst, int iLast);
    void OpenChanged(QORNavigInstance& iInstance);
    void NodeChanged(QORNavigInstance& iInstance);
    void TellSelected(QORNavigInstance& iInstance, bool iExtends);
    void SelectionChanged();
    void TellSelection();
    void SettingsChanged();

    QORWatch<QORFrmEditor> _editor;
    QORWatch<QORViewer> _viewer;
    QORVar<QOR2DViewpoint> _viewpoint;
    int _graphStyle;
    QORUnicodeString _heading;
    std::unique_ptr<QORNavigController> _controller;
    std::unique_ptr<QORGraphViewer> _graphViewer;
    Instances _roots;
    std::unordered_map<QORBaseUnknown*, int> _shown; // implementations, with the number of their instances; 0
                                                     // for one that is about to come
    std::unordered_set<QORNavigInstance*> _selected;
    bool _isSelectionToBeTold = false;
    int _portion = kQORPortionAll;
    int _rootsAdded = 0; // since the box was empty
    std::shared_ptr<QORNavigRows> _rows;
    int _refills = 0; // inside each other
    std::unique_ptr<QORNavigMemory> _memory;
    std::unique_ptr<QORNavigBoxPeer> _peer;
};
