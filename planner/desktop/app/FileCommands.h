#pragma once

#include <QObject>

class QAction;
class QMenu;

namespace planner::desktop {

class FileWatch;
class InfoBar;
class PlanSession;
class Recovery;

/// Opening, saving and not losing plan files.
class FileCommands : public QObject {
    Q_OBJECT

public:
    FileCommands(PlanSession& session, InfoBar& bar, QWidget* window);

    QAction* startNew;
    QAction* open;
    QAction* save;
    QAction* saveAs;
    QMenu* recent;

    Recovery& recovery() const { return *recovery_; }

    /// Opens a file, or says what is wrong with it.
    void openFile(const QString& path);

    /// Asks what to do with changes that aren't saved. False to stay.
    bool mayLeave();

    /// Offers what an earlier process has left behind.
    void offerRecovery();

    /// Files that were opened or saved of late.
    static QStringList recentFiles();

private:
    QAction* make(const QString& text, const QString& iconName, const QKeySequence& keys, void (FileCommands::*run)());
    void runNew();
    void runOpen();
    void takeTyped();
    void saveChanges();
    bool runSave();
    bool runSaveAs();
    void reload();
    void remember();
    void fillRecent();
    bool write(const QString& path);
    QString folder() const;

    PlanSession& session_;
    InfoBar& bar_;
    QWidget* window_;
    Recovery* recovery_;
    FileWatch* watch_;
};

} // namespace planner::desktop
