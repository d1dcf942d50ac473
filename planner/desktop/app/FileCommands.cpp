#include "planner/desktop/app/FileCommands.h"

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/FileWatch.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/plan/Recovery.h"
#include "planner/desktop/widgets/InfoBar.h"
#include "planner/desktop/widgets/SaveName.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>

namespace planner::desktop {

namespace {

constexpr const char* kRecentKey = "recentFiles";
constexpr qsizetype kMostRecent = 10;
constexpr const char* kFilter = "Plans (*.plan.json);;All files (*)";

} // namespace

FileCommands::FileCommands(PlanSession& session, InfoBar& bar, QWidget* window)
    : QObject(window), startNew(make("&New", "new", QKeySequence::New, &FileCommands::runNew)),
      open(make("&Open…", "open", QKeySequence::Open, &FileCommands::runOpen)),
      save(new QAction(icon("save"), "&Save", this)), saveAs(new QAction("Save &As…", this)),
      recent(new QMenu("Open &Recent", window)), session_(session), bar_(bar), window_(window),
      recovery_(new Recovery(session)), watch_(new FileWatch(session)) {
    save->setShortcut(QKeySequence::Save);
    saveAs->setShortcut(QKeySequence::SaveAs);
    connect(save, &QAction::triggered, this, &FileCommands::saveChanges);
    connect(saveAs, &QAction::triggered, this, &FileCommands::runSaveAs);
    connect(recent, &QMenu::aboutToShow, this, &FileCommands::fillRecent);
    connect(&session_, &PlanSession::saved, this, &FileCommands::remember);
    connect(&session_, &PlanSession::replaced, this, &FileCommands::remember);
    connect(watch_, &FileWatch::changedOutside, this, [this] {
        bar_.say(QFileInfo(session_.path()).fileName() + " was changed by another program." +
                     (session_.isModified() ? " Your own changes aren't saved." : ""),
                 {{"Reload",
                   [this] {
                       reload();
                   }},
                  {"Keep Mine", [] {
                   }}});
    });
    connect(watch_, &FileWatch::goneOutside, this, [this] {
        bar_.say(session_.path() + " is gone. The plan is only in this window.", {{"Save", [this] {
                                                                                       runSave();
                                                                                   }}});
    });
}

QAction* FileCommands::make(const QString& text, const QString& iconName, const QKeySequence& keys,
                            void (FileCommands::*run)()) {
    auto* const action = new QAction(icon(iconName), text, this);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, run);
    return action;
}

QString FileCommands::folder() const {
    return session_.path().isEmpty() ? QDir::currentPath() : QFileInfo(session_.path()).path();
}

void FileCommands::runNew() {
    if (mayLeave()) {
        session_.startNew();
    }
}

void FileCommands::runOpen() {
    if (!mayLeave()) {
        return;
    }
    const QString path = QFileDialog::getOpenFileName(window_, "Open a plan", folder(), kFilter);
    if (!path.isEmpty()) {
        openFile(path);
    }
}

void FileCommands::openFile(const QString& path) {
    const QStringList faults = session_.open(path);
    if (!faults.isEmpty()) {
        bar_.say(faults.join('\n'));
    }
}

void FileCommands::reload() {
    openFile(session_.path());
}

bool FileCommands::write(const QString& path) {
    const QString error = session_.saveAs(path);
    if (!error.isEmpty()) {
        bar_.say(error);
    }
    return error.isEmpty();
}

/// What is being typed in a field becomes an edit, as if the field had been left.
void FileCommands::takeTyped() {
    const QPointer<QWidget> field = QApplication::focusWidget();
    if (field && window_->isAncestorOf(field)) {
        field->clearFocus();
        if (field && field->isVisible()) {
            field->setFocus();
        }
    }
}

void FileCommands::saveChanges() {
    takeTyped();
    if (session_.isModified() || !QFileInfo::exists(session_.path())) {
        runSave();
    }
}

bool FileCommands::runSave() {
    return session_.path().isEmpty() ? runSaveAs() : write(session_.path());
}

bool FileCommands::runSaveAs() {
    takeTyped();
    const QString proposed = session_.path().isEmpty() ? folder() + "/new.plan.json" : session_.path();
    const QString chosen = QFileDialog::getSaveFileName(window_, "Save the plan", proposed, kFilter);
    const QString path = withEnding(window_, chosen, "plan.json");
    return !path.isEmpty() && write(path);
}

bool FileCommands::mayLeave() {
    takeTyped();
    if (!session_.isModified()) {
        return true;
    }
    const auto answer =
        QMessageBox::question(window_, "Changes that aren't saved", "Save the changes to \"" + session_.title() + "\"?",
                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && runSave());
}

void FileCommands::offerRecovery() {
    const auto left = Recovery::left();
    if (left.empty()) {
        return;
    }
    const Recovery::Left& latest = left.front();
    const QString name = latest.origin.isEmpty() ? QString("A new plan") : QFileInfo(latest.origin).fileName();
    bar_.say(name + " was not saved when the planner ended, at " +
                 QLocale().toString(latest.time, QLocale::ShortFormat) + '.',
             {{"Restore",
               [this, latest] {
                   const QStringList faults = mayLeave() ? recovery_->restore(latest) : QStringList();
                   if (!faults.isEmpty()) {
                       bar_.say(faults.join('\n'));
                   }
               }},
              {"Discard", [this, latest] {
                   Recovery::discard(latest);
                   offerRecovery();
               }}});
}

QStringList FileCommands::recentFiles() {
    return QSettings().value(kRecentKey).toStringList();
}

void FileCommands::remember() {
    if (session_.path().isEmpty()) {
        return;
    }
    QStringList files = recentFiles();
    files.removeAll(session_.path());
    files.prepend(session_.path());
    QSettings().setValue(kRecentKey, QStringList(files.mid(0, kMostRecent)));
}

void FileCommands::fillRecent() {
    recent->clear();
    for (const QString& path : recentFiles()) {
        recent
            ->addAction(QDir(path).dirName(), this,
                        [this, path] {
                            if (mayLeave()) {
                                openFile(path);
                            }
                        })
            ->setToolTip(path);
    }
    if (recent->isEmpty()) {
        recent->addAction("None yet")->setEnabled(false);
    }
    recent->setToolTipsVisible(true);
}

} // namespace planner::desktop
