#include "planner/desktop/plan/PlanSession.h"

#include "planner/file/PlanReader.h"
#include "planner/file/PlanWriter.h"

#include <QFileInfo>

namespace planner::desktop {

namespace {

std::unique_ptr<Plan> emptyPlan() {
    auto plan = std::make_unique<Plan>();
    plan->fallbackTitle = "New plan";
    plan->makeDefaultProcess();
    plan->number();
    return plan;
}

} // namespace

PlanSession::PlanSession(QObject* parent) : QObject(parent) {
    make(emptyPlan(), {});
}

PlanSession::~PlanSession() {
    drop();
}

void PlanSession::make(std::unique_ptr<Plan> plan, const QString& path) {
    document_ = QORVar<PlanDocument>::Adopt(new PlanDocument(std::move(plan)));
    frmEditor_ = QORVar<QORFrmEditor>::Adopt(new QORFrmEditor(document_.Get()));
    QORFrmEditor::SetCurrentEditor(frmEditor_.Get());
    editor_ = std::make_unique<PlanEditor>(*document_.Get());
    path_ = path;
    unsaved_ = false;
}

void PlanSession::drop() {
    editor_.reset();
    frmEditor_ = {};
    document_ = {};
}

QString PlanSession::title() const {
    return QString::fromStdString(plan().title());
}

bool PlanSession::perform(const std::function<void(PlanEditor&)>& edits) {
    bool done = true;
    try {
        edits(*editor_);
    } catch (const EditError& error) {
        Q_EMIT refused(QString::fromUtf8(error.what()));
        done = false;
    } catch (const std::exception& error) {
        // The step was made; somebody who was told of it failed.
        Q_EMIT refused(QString("A view can't follow: ") + error.what());
    }
    Q_EMIT changed();
    Q_EMIT fileStateChanged();
    return done;
}

void PlanSession::undo() {
    perform([](PlanEditor& editor) { editor.undo(); });
}

void PlanSession::redo() {
    perform([](PlanEditor& editor) { editor.redo(); });
}

void PlanSession::take(std::unique_ptr<Plan> plan, const QString& path) {
    Q_EMIT aboutToReplace();
    drop();
    make(std::move(plan), path);
    Q_EMIT replaced();
    Q_EMIT fileStateChanged();
}

void PlanSession::takeUnsaved(std::unique_ptr<Plan> plan, const QString& path) {
    take(std::move(plan), path);
    unsaved_ = true;
    Q_EMIT fileStateChanged();
}

void PlanSession::startNew() {
    take(emptyPlan(), {});
}

QStringList PlanSession::open(const QString& path) {
    ReadResult read = readPlan(path.toStdString());
    QStringList faults;
    for (const std::string& fault : read.errors) {
        faults << QString::fromStdString(fault);
    }
    if (read.plan) {
        take(std::move(read.plan), path == "-" ? QString() : QFileInfo(path).absoluteFilePath());
    }
    return faults;
}

QString PlanSession::saveAs(const QString& path) {
    if (const auto error = writePlanFile(plan(), path.toStdString())) {
        return path + ' ' + QString::fromStdString(*error);
    }
    path_ = QFileInfo(path).absoluteFilePath();
    editor_->markSaved();
    unsaved_ = false;
    Q_EMIT saved();
    Q_EMIT fileStateChanged();
    return {};
}

} // namespace planner::desktop
