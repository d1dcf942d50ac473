#pragma once

#include "planner/desktop/app/Options.h"
#include "planner/desktop/plan/PlanDrop.h"

#include <QMainWindow>

#include <functional>
#include <vector>

namespace planner::desktop {

class AnswerPane;
class BomArea;
class BomDesk;
class BomSide;
class Choice;
class FileCommands;
class Findings;
class FlowPane;
class InfoBar;
class ItemPane;
class PlanClipboard;
class PlanCommands;
class PlanPane;
class PlanSession;
class Progress;
class PropertyPane;
class Questions;
class StartPage;
class StatusLine;

/// The application's window: the plan at the left, bills in the middle, what is chosen at the right, the flow below.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    PlanSession& session() const { return *session_; }
    Choice& choice() const { return *choice_; }
    BomArea& area() const { return *area_; }
    BomDesk& desk() const { return *desk_; }
    FileCommands& files() const { return *files_; }
    Findings& findings() const { return *findings_; }

    /// Opens what the command line names. Gives what is wrong with it, a line each.
    QStringList open(const Options& options);

    /// Shows a text above the bills until it is closed.
    void say(const QString& text);

    /// Opens a bill, and keeps its mode as the usual one.
    void openBill(ModelObject& root, int mode);

    /// Shows what is chosen in the plan; in the current bill.
    void revealInPlan();
    void revealInBill();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void addPane(Qt::DockWidgetArea area, const QString& title, const QString& name, QWidget* content);
    void fillCentre();
    void makePanes();
    void makeMenus();
    void makeFileMenu();
    void makeEditMenu();
    void makePlanMenu();
    void makeBillMenu();
    void makeQuestionMenu();
    void makeViewMenu();
    void makeGoToMenu(QMenu& menu);
    void makeAppearanceMenu(QMenu& menu);
    void makeContextMenu();
    void makeToolBar();
    QAction* add(QMenu& menu, const QString& text, const QString& iconName, const QKeySequence& keys,
                 const std::function<void()>& run);
    void onSide(void (BomSide::*act)());

    void editName(ModelObject& object);
    void rename();
    void remove();
    void cutOrCopy(void (PlanClipboard::*take)(const std::vector<PlanDrag::Entry>& rows));
    void paste();
    void answer(const QString& text);
    void chooseFasteners();
    void followFile();
    void followEdits();
    void enable();
    void restoreLayout();

    PlanSession* session_;
    Choice* choice_;
    InfoBar* bar_;
    StartPage* start_;
    BomArea* area_;
    BomDesk* desk_;
    Progress* progress_;
    PlanCommands* commands_;
    FileCommands* files_;
    PlanPane* plan_ = nullptr;
    ItemPane* items_ = nullptr;
    FlowPane* flow_ = nullptr;
    PropertyPane* properties_ = nullptr;
    PlanClipboard* clipboard_;
    Findings* findings_;
    Questions* questions_;
    AnswerPane* answers_ = nullptr;
    QMenu* contextMenu_ = nullptr; ///< of what is chosen
    QMenu* itemKinds_ = nullptr;
    QMenu* stepKinds_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QAction* cut_ = nullptr;
    QAction* copy_ = nullptr;
    QAction* paste_ = nullptr;
    QAction* rename_ = nullptr;
    QAction* remove_ = nullptr;
    QAction* showInPlan_ = nullptr;
    QAction* showInBill_ = nullptr;
    QAction* export_ = nullptr;
    QAction* bill_ = nullptr; ///< in the mode that was last used
    QMenu* billModes_ = nullptr;
    QMenu* ownBill_ = nullptr; ///< of what is chosen
    std::vector<QAction*> onBill_;
    QAction* split_ = nullptr;
    QAction* join_ = nullptr;
};

} // namespace planner::desktop
