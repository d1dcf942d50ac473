#pragma once

#include "QORPlatform/dialog/QORDlgFrame.h"
#include "QORPlatform/dialog/QORDlgWindow.h"
#include "QORPlatform/frame/QORFrmEditor.h"
#include "QORPlatform/text/QORUnicodeString.h"
#include "QORPlatform/toolkit/QORFrmWindowPeer.h"
#include "QORPlatform/visualization/QORViewer.h"

#include <functional>
#include <utility>

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

    /// The window is built to its end, and is shown from now on unless it was hidden. Called once, at the end of the
    /// constructor of a class that builds a window, or by whoever makes a plain one; later calls change nothing.
    void Complete();

    /// Shows or hides the window; before it is complete this says what happens then. Shown at first.
    void SetShown(bool iShown);
    bool IsShown() const { return _isComplete && _isToBeShown; }

    /// Brings the window to the front, and shows it where it is hidden; it then is the active one, see ReportActivate.
    void Raise();

    /// A person has made the window the active one: its editor, unless it has none, is the current one from now on.
    void ReportActivate();

    /// A person wants to close the window. False when that was refused, and the window stays. Otherwise this spends its
    /// first reference, which the dialog loop lets go when it next runs: the maker no longer releases it, and the
    /// window lives on only as long as somebody holds a counted handle on it.
    bool ReportClose();

    /// Whether a person has closed the window, or its end was requested. It shows nothing new from then on.
    bool IsClosed() const { return _isClosed || IsWaitingForEnd(); }

    /// Asked when a person wants to close the window: false refuses it. None at first, and null for none.
    void SetCloseGuard(std::function<bool(QORFrmWindow&)> iGuard) { _closeGuard = std::move(iGuard); }

    /// The toolkit's side, null where there is none.
    QORFrmWindowPeer* GetPeer() const { return _peer.get(); }

    /// Toolkit for all windows that are made from now on; null for none. Stays the caller's, who keeps it long enough.
    static void SetToolkit(QORFrmWindowToolkit* iToolkit);

protected:
    void LayoutChanged() override;
    void LeaveParent() override;

private:
    void TellShown();

    QORUnicodeString _baseName;
    std::function<bool(QORFrmWindow&)> _closeGuard;
    bool _isComplete = false;
    bool _isToBeShown = true;
    bool _isClosed = false;
    QORWatch<QORFrmEditor> _editor;
    QORWatch<QORViewer> _selectableViewer;
    QORDlgFrame* _viewerFrame = nullptr;
    std::unique_ptr<QORFrmWindowPeer> _peer;
};
