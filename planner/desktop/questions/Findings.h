#pragma once

#include "planner/questions/check/Check.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <unordered_map>

namespace planner::desktop {

class PlanSession;

/// What is wrong in the plan, for the marks on what it is wrong with. Follows the plan after a pause where a check is
/// quick; a large plan is checked when a person asks, and its marks go with the next edit.
class Findings : public QObject {
    Q_OBJECT

public:
    explicit Findings(PlanSession& session);

    /// Checks the plan as a bill of that root would have it, an activity or a resource.
    void run(ModelObject& root);

    const std::vector<Finding>& all() const { return findings_; }

    /// What is wrong with an object, a line each: what is wrong, and what to do.
    QString textOn(const ModelObject& object) const;
    bool marks(const ModelObject& object) const { return marked_.contains(&object); }

Q_SIGNALS:
    void changed();

private:
    void clear();
    void follow();

    PlanSession& session_;
    std::vector<Finding> findings_;
    std::unordered_map<const ModelObject*, QStringList> marked_;
    QORVar<ModelObject> root_; // of the last check, none for the process
    QTimer pause_;
};

} // namespace planner::desktop
