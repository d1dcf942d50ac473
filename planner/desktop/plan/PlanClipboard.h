#pragma once

#include "planner/desktop/plan/PlanDrop.h"

#include <QObject>

namespace planner::desktop {

/// What was cut or copied in the plan, so that all that is dragged can be done by keyboard as well. It is lost with its
/// plan.
class PlanClipboard : public QObject {
    Q_OBJECT

public:
    explicit PlanClipboard(PlanSession& session);

    /// Keeps rows to be moved, or to be put elsewhere as well.
    void cut(const std::vector<PlanDrag::Entry>& rows) { take(rows, true); }
    void copy(const std::vector<PlanDrag::Entry>& rows) { take(rows, false); }

    /// Whether the object takes what is kept, as far as it is still in the plan. Only items can be in several places.
    bool canPaste(ModelObject* onto) const;

    /// Drops what is kept on an object that takes it. False for items about which a person has to say in which relation
    /// they come: those are the objects.
    bool paste(ModelObject& onto);
    std::vector<ModelObject*> objects() const;

Q_SIGNALS:
    void changed();

private:
    void take(const std::vector<PlanDrag::Entry>& rows, bool moves);
    std::vector<PlanDrag::Entry> present() const;

    PlanSession& session_;
    std::vector<PlanDrag::Entry> rows_;
    std::vector<QORVar<ModelObject>> held_; // objects and owners, which edits may take out of the plan
    bool moves_ = false;
};

} // namespace planner::desktop
