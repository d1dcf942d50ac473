// Three files of one name for each process: the plan, the path that it belongs to, and a lock that tells whether the
// process still runs.

#include "planner/desktop/plan/Recovery.h"

#include "planner/desktop/plan/PlanSession.h"

#include "planner/file/PlanReader.h"
#include "planner/file/PlanWriter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>

namespace planner::desktop {

namespace {

constexpr int kIdleMilliseconds = 1500;

QString withoutEnding(const QString& planFile) {
    return planFile.chopped(static_cast<qsizetype>(std::string_view(".plan.json").size()));
}

QString originOf(const QString& base) {
    QFile file(base + ".origin");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Puts a content in the place of a file in one step. Gives what went wrong, or nothing.
QString replaceFile(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    const bool done = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    return done ? QString() : file.errorString();
}

void removeFiles(const QString& base) {
    QFile::remove(base + ".plan.json");
    QFile::remove(base + ".origin");
}

} // namespace

Recovery::Recovery(PlanSession& session) : QObject(&session), session_(session) {
    QDir().mkpath(folder());
    base_ = folder() + '/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    lock_ = std::make_unique<QLockFile>(base_ + ".lock");
    lock_->setStaleLockTime(0);
    lock_->lock();
    writer_.setMaxThreadCount(1);
    idle_.setSingleShot(true);
    idle_.setInterval(kIdleMilliseconds);
    connect(&idle_, &QTimer::timeout, this, &Recovery::writeNow);
    connect(&session_, &PlanSession::changed, this, &Recovery::schedule);
    connect(&session_, &PlanSession::saved, this, &Recovery::clear);
    connect(&session_, &PlanSession::aboutToReplace, this, &Recovery::clear);
}

Recovery::~Recovery() {
    clear();
}

QString Recovery::folder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + "/recovery";
}

void Recovery::schedule() {
    idle_.start();
}

void Recovery::writeNow() {
    if (!session_.isModified()) {
        clear();
        return;
    }
    std::string text;
    TextSink sink(text);
    writePlan(session_.plan(), sink);
    sink.finish();
    writer_.start([this, text = std::move(text), base = base_, origin = session_.path().toUtf8()] {
        QString error = replaceFile(base + ".origin", origin);
        if (error.isEmpty()) {
            error = replaceFile(base + ".plan.json", QByteArray::fromRawData(text.data(), qsizetype(text.size())));
        }
        if (!error.isEmpty()) {
            QMetaObject::invokeMethod(
                this, [this, error] { Q_EMIT session_.refused("The recovery file can't be written: " + error); },
                Qt::QueuedConnection);
        }
    });
}

void Recovery::clear() {
    idle_.stop();
    writer_.waitForDone(); // or the files would come back
    removeFiles(base_);
}

std::vector<Recovery::Left> Recovery::left() {
    std::vector<Left> found;
    for (const QFileInfo& file : QDir(folder()).entryInfoList({"*.plan.json"}, QDir::Files, QDir::Time)) {
        const QString base = withoutEnding(file.absoluteFilePath());
        QLockFile lock(base + ".lock");
        lock.setStaleLockTime(0);
        if (lock.tryLock()) { // its process is gone
            found.push_back({file.absoluteFilePath(), originOf(base), file.lastModified()});
        }
    }
    return found;
}

void Recovery::discard(const Left& left) {
    removeFiles(withoutEnding(left.file));
}

QStringList Recovery::restore(const Left& left) {
    ReadResult read = readPlan(left.file.toStdString());
    QStringList faults;
    for (const std::string& fault : read.errors) {
        faults << QString::fromStdString(fault);
    }
    if (read.plan) {
        read.plan->folder = QFileInfo(left.origin).path().toStdString();
        session_.takeUnsaved(std::move(read.plan), left.origin);
        writeNow();
        writer_.waitForDone();
        discard(left);
    }
    return faults;
}

} // namespace planner::desktop
