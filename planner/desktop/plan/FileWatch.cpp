#include "planner/desktop/plan/FileWatch.h"

#include "planner/desktop/plan/PlanSession.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace planner::desktop {

namespace {

constexpr int kCalmMilliseconds = 200;

/// A fingerprint of the file's content, empty when it can't be read.
QByteArray contentOf(const QString& path) {
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result() : QByteArray();
}

} // namespace

FileWatch::FileWatch(PlanSession& session) : QObject(&session), session_(session) {
    calm_.setSingleShot(true);
    calm_.setInterval(kCalmMilliseconds);
    connect(&calm_, &QTimer::timeout, this, &FileWatch::look);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, &calm_, qOverload<>(&QTimer::start));
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, &calm_, qOverload<>(&QTimer::start));
    connect(&session_, &PlanSession::saved, this, &FileWatch::follow);
    connect(&session_, &PlanSession::replaced, this, &FileWatch::follow);
}

void FileWatch::follow() {
    if (const QStringList watched = watcher_.files() + watcher_.directories(); !watched.isEmpty()) {
        watcher_.removePaths(watched);
    }
    known_.clear();
    if (!session_.path().isEmpty()) {
        // The folder too: a file that is replaced by another of its name is a new one to the watcher.
        watcher_.addPaths({session_.path(), QFileInfo(session_.path()).path()});
        known_ = contentOf(session_.path());
    }
}

void FileWatch::look() {
    const QString& path = session_.path();
    if (path.isEmpty()) {
        return;
    }
    if (!watcher_.files().contains(path)) {
        watcher_.addPath(path);
    }
    const QByteArray now = contentOf(path);
    if (now == known_) {
        return;
    }
    known_ = now;
    if (now.isEmpty()) {
        Q_EMIT goneOutside();
    } else {
        Q_EMIT changedOutside();
    }
}

} // namespace planner::desktop
