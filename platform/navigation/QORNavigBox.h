#pragma once

#include "QORPlatform/dialog/QORDlgFrame.h"
#include "QORPlatform/frame/QORFrmEditor.h"
#include "QORPlatform/navigation/QORGraphViewer.h"
#include "QORPlatform/navigation/QORNavigController.h"
#include "QORPlatform/navigation/QORNavigInstance.h"
#include "QORPlatform/toolkit/QORNavigBoxPeer.h"
#include "QORPlatform/visualization/QOR2DViewpoint.h"
#include "QORPlatform/visualization/QORViewer.h"

#include <unordered_map>
#include <unordered_set>

/// Style of the painted graph.
inline constexpr int kQORGraphTree = 0; ///< indented rows, one below the other

/// The tree box: shows tree objects (see QORINavigateObject) as nodes that a person opens, selects and acts on.
///
/// For each tree object that is shown the box makes an instance with a node; for a root when it is added, below that
/// when a person opens the node above, and never earlier. The box stands in a frame of its own and ends with it.
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

    /// The selected instances, in no order.
    std::vector<QORNavigInstance*> GetSelection() const { return {_selected.begin(), _selected.end()}; }

    /// Whether an object is shown anywhere in the box.
    bool IsShown(const QORBaseUnknown_var& iObject) const { return _shown.contains(iObject.Impl()); }

    /// What a person does; the node's extension is told afterwards. Nothing happens for what has left the tree
    /// meanwhile. iExtend adds the node to the selection, or takes it out of it, where the controller allows more than
    /// one; a click on what is selected keeps it selected otherwise.
    void ReportExpand(QORNavigInstance& iInstance);
    void ReportCollapse(QORNavigInstance& iInstance) { iInstance.Collapse(); }
    void ReportSelect(QORNavigInstance& iInstance, bool iExtend);
    void ReportAction(QORNavigInstance& iInstance);

    /// The toolkit's side, null where there is none.
    QORNavigBoxPeer* GetPeer() const { return _peer.get(); }

    /// Toolkit for all boxes that are made from now on; null for none. Stays the caller's, who keeps it long enough.
    static void SetToolkit(QORNavigBoxToolkit* iToolkit);

private:
    friend class QORGraphViewer;
    friend class QORNavigController;
    friend class QORNavigInstance;
    using Instances = QORNavigInstance::Instances;

    bool Holds(const QORNavigInstance& iInstance) const;
    bool AllowsOpeningAt(int iDepth) const;
    bool AllowsSeveral() const;
    Instances MakeInstances(const QORListValQORBaseUnknown_var& iObjects, int iDepth);
    void Entered(const QORNavigInstance& iInstance);
    void Left(QORNavigInstance& iInstance);

    void SelectInstance(QORNavigInstance& iInstance, bool iOn);
    bool IsSelected(const QORNavigInstance& iInstance) const;

    void RootsChanged();
    void ChildrenChanged(QORNavigInstance& iInstance);
    void NodeChanged(QORNavigInstance& iInstance);
    void SelectionChanged();
    void SettingsChanged();

    QORWatch<QORFrmEditor> _editor;
    QORWatch<QORViewer> _viewer;
    QORVar<QOR2DViewpoint> _viewpoint;
    int _graphStyle;
    QORUnicodeString _heading;
    std::unique_ptr<QORNavigController> _controller;
    std::unique_ptr<QORGraphViewer> _graphViewer;
    Instances _roots;
    std::unordered_map<QORBaseUnknown*, int> _shown; // implementations, with the number of their instances
    std::unordered_set<QORNavigInstance*> _selected;
    std::unique_ptr<QORNavigBoxPeer> _peer;
};
