#include "planner/desktop/questions/Findings.h"

#include "planner/desktop/bom/BomDesk.h"
#include "planner/desktop/plan/PlanSession.h"

#include "QORPlatform/toolkit/QORProgress.h"
#include "VXMBomInfrastructure/generation/VXMTooManyNodes.h"

namespace planner::desktop {

namespace {

constexpr int kPauseMilliseconds = 400;
constexpr std::size_t kQuick = 3000; // items and links of a plan that is checked without being asked

} // namespace

Findings::Findings(PlanSession& session) : QObject(&session), session_(session) {
    pause_.setSingleShot(true);
    pause_.setInterval(kPauseMilliseconds);
    connect(&pause_, &QTimer::timeout, this, &Findings::follow);
    connect(&session_, &PlanSession::changed, this, [this] {
        if (session_.plan().items.size() + session_.plan().links().size() > kQuick) {
            clear(); // objects may be gone
        } else {
            pause_.start();
        }
    });
    connect(&session_, &PlanSession::aboutToReplace, this, [this] {
        root_ = {};
        pause_.stop();
        clear();
    });
    connect(&session_, &PlanSession::replaced, this, [this] {
        if (session_.plan().items.size() + session_.plan().links().size() <= kQuick) {
            pause_.start();
        }
    });
}

void Findings::clear() {
    if (!findings_.empty()) {
        findings_.clear();
        marked_.clear();
        Q_EMIT changed();
    }
}

void Findings::follow() {
    const bool stands = root_ && root_->standsInPlan();
    try {
        run(stands ? *root_.Get() : BomDesk::usualRoot(session_.plan()));
    } catch (const VXMTooManyNodes&) {
        clear(); // whoever asks for the check is told
    }
}

void Findings::run(ModelObject& root) {
    root_ = &root;
    try {
        findings_ = checkPlan(session_.plan(), root);
    } catch (const QORCancelled&) {
        findings_.clear();
    }
    marked_.clear();
    for (const Finding& finding : findings_) {
        marked_[finding.object] << QString::fromStdString(finding.message + ".\n→ " + finding.advice);
    }
    Q_EMIT changed();
}

QString Findings::textOn(const ModelObject& object) const {
    const auto found = marked_.find(&object);
    return found == marked_.end() ? QString() : found->second.join('\n');
}

} // namespace planner::desktop
