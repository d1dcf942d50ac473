#pragma once

#include "QORPlatform/dialog/QORDlgDialog.h"
#include "QORPlatform/dialog/QORDlgFrame.h"
#include "QORPlatform/frame/QORFrmEditor.h"
#include "QORPlatform/text/QORUnicodeString.h"
#include "QORPlatform/toolkit/QORFrmWindowPeer.h"
#include "QORPlatform/visualization/QORViewer.h"

/// A window of the application's frame, with one frame for its content.
///
/// Its first reference is let go once: by whoever made it, see QORCommand, or when a person has closed it. As soon as a
/// person can close it, the maker's plain pointer may end with any run of the dialog loop; to go on using the window,
/// hold a counted handle (QORVar) of your own, and don't Release the first reference after a close.
class QOR_EXPORT QORFrmWindow : public QORDlgDialog, private QORCounted<QORFrmWindow> {
public:
    static constexpr std::string_view kCountName = "QORFrmWindow";

    /// A window of that name, which is its first title, for the document that iEditor (null for none) works on.
    QORFrmWindow(const QORString& iName, QORFrmEditor* iEditor);
    ~QORFrmWindow() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// The editor that the window was made with, null for none and when it has ended.
    QORFrmEditor* GetEditor() const { return _editor.Get(); }

    /// The frame for the window's content, which belongs to the window; null when the toolkit couldn't show it.
    QORDlgFrame* GetViewerFrame() const { return _viewerFrame; }

    /// Makes iViewer the one to select in; null for none.
    void SetViewerSelectable(QORViewer* iViewer);

    /// The viewer to select in, null for none and when it has ended.
    QORViewer* GetSelectableViewer() const { return _selectableViewer.Get(); }

    void SetBaseName(const QORUnicodeString& iTitle);
    const QORUnicodeString& GetBaseName() const { return _baseName; }

    /// A person has closed the window. This spends its first reference, which the dialog loop lets go when it next
    /// runs: the maker no longer releases it, and the window lives on only as long as somebody holds a counted handle
    /// on it.
    void ReportClose() { RequestDelayedDestruction(); }

    /// The toolkit's side, null where there is none.
    QORFrmWindowPeer* GetPeer() const { return _peer.get(); }

    /// Toolkit for all windows that are made from now on; null for none. Stays the caller's, who keeps it long enough.
    static void SetToolkit(QORFrmWindowToolkit* iToolkit);

protected:
    void LayoutChanged() override;

private:
    QORUnicodeString _baseName;
    QORWatch<QORFrmEditor> _editor;
    QORWatch<QORViewer> _selectableViewer;
    QORDlgFrame* _viewerFrame = nullptr;
    std::unique_ptr<QORFrmWindowPeer> _peer;
};
