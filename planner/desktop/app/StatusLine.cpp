#include "planner/desktop/app/StatusLine.h"

#include "planner/desktop/plan/PlanSession.h"

#include "planner/model/Contents.h"

#include <QLocale>
#include <QTime>

namespace planner::desktop {

namespace {

QString counted(std::size_t count, const QString& one, const QString& many) {
    return QLocale().toString(static_cast<qulonglong>(count)) + ' ' + (count == 1 ? one : many);
}

} // namespace

StatusLine::StatusLine(PlanSession& session, QWidget* parent)
    : QStatusBar(parent), session_(session), counts_(new QLabel(this)), computed_(new QLabel(this)) {
    constexpr int kApart = 24;
    computed_->setObjectName("computed");
    computed_->setContentsMargins(0, 0, kApart, 0);
    counts_->setObjectName("counts");
    addPermanentWidget(computed_);
    addPermanentWidget(counts_);
    connect(&session_, &PlanSession::changed, this, &StatusLine::count);
    connect(&session_, &PlanSession::replaced, this, &StatusLine::count);
    count();
}

void StatusLine::count() {
    std::size_t activities = 0;
    std::size_t resources = 0;
    walkPlan(session_.plan(), [&](const FlowObject& object, const ModelObject*) {
        activities += object.sort() == Sort::Activity ? 1 : 0;
        resources += object.sort() == Sort::Resource ? 1 : 0;
    });
    const QStringList parts{counted(activities - 1, "step", "steps"), // the root is none
                            counted(session_.plan().items.size(), "item", "items"),
                            counted(resources, "resource", "resources"),
                            counted(session_.plan().links().size(), "link", "links")};
    counts_->setText(parts.join("  ·  "));
}

void StatusLine::computed(double milliseconds) {
    constexpr double kSmall = 10;
    computed_->setText(QString("Bill computed at %1 in %2 ms")
                           .arg(QTime::currentTime().toString("HH:mm:ss"))
                           .arg(milliseconds, 0, 'f', milliseconds < kSmall ? 1 : 0));
}

} // namespace planner::desktop
