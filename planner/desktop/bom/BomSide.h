#pragma once

#include "planner/bill/Bill.h"

#include "QORPlatform/dialog/QORWatch.h"

#include <QStackedWidget>
#include <QTimer>

class QLabel;
class QLineEdit;
class QListView;
class VXMFabBomViewer;

namespace planner::desktop {

class Choice;
class FramePane;
class MatchModel;
class TreeView;

/// The bill's side of a window: its tree, a filter above it, and below it what a person should know of the bill.
class BomSide : public QWidget {
    Q_OBJECT

public:
    BomSide(VXMFabBomViewer& window, FramePane& pane, ModelObject& root, Choice& choice, bool hasTree);

    QLineEdit& filter() const { return *filter_; }
    TreeView& tree() const { return *tree_; }

    /// The bill as the window has it.
    Bill bill() const;

    /// Heading of the bill for people.
    QString heading() const;

    /// Opens the tree down to the first row of an object; false where the bill has none.
    bool reveal(const ModelObject& object);

    void expandAll();
    void collapseAll();
    void copy() const;

    /// Looks anew, once there is time, at what a person should know of the bill.
    void remarkSoon() { remarkTimer_.start(); }

    /// Asks for a file and writes the bill to it, in the format of its ending.
    void exportBill();

Q_SIGNALS:
    void said(const QString& text);
    void menuAsked(QPoint place);

private:
    void followRefill();
    void remark();
    QString remarkText() const;
    void search();
    void chooseRow();
    void showChoice();

    QORWatch<VXMFabBomViewer> window_;
    QORVar<ModelObject> root_;
    Choice& choice_;
    TreeView* tree_;
    QStackedWidget* pages_;
    QListView* found_;
    MatchModel* matches_;
    QLineEdit* filter_;
    QLabel* remark_;
    QTimer remarkTimer_;
    bool following_ = false;
};

} // namespace planner::desktop
