#pragma once

#include "planner/desktop/toolkit/TreeView.h"

#include "QORPlatform/dialog/QORWatch.h"
#include "QORPlatform/frame/QORFrmWindow.h"

#include <QPointer>
#include <QWidget>

class QSplitter;

namespace planner::desktop {

/// What a person sees of a window of the platform: its tree beside its viewer. Tells the window its size. May outlive
/// the window, and is empty then.
class FramePane : public QWidget {
    Q_OBJECT

public:
    explicit FramePane(QORFrmWindow& window);

    /// The window, null when it has ended.
    QORFrmWindow* window() const { return window_.Get(); }
    TreeView* tree() const { return tree_; }
    QWidget* view() const { return view_; }

    void setTree(TreeView* tree);

    /// Puts a widget that holds the tree in the tree's place.
    void setTreeSide(QWidget* side);
    void setView(QWidget* view);

    /// The window's heading as it fits.
    QString title() const;

    /// A person works in the window from now on.
    void activate();

    /// Gives the tree the keyboard, or the view where no tree is seen.
    void takeKeyboard();

    /// Asks the window to end, as a person's close does.
    void close();

Q_SIGNALS:
    void titleChanged();
    /// The window is to be seen, or no longer; comes to the front; is off the screen for good.
    void shown();
    void hidden();
    void raised();
    void ended();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QORWatch<QORFrmWindow> window_;
    QSplitter* splitter_;
    QPointer<TreeView> tree_;
    QPointer<QWidget> view_;
};

} // namespace planner::desktop
