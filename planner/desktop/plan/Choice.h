#pragma once

#include "planner/model/ModelObject.h"

#include <QObject>

#include <vector>

class QORXSO;

namespace planner::desktop {

class PlanSession;

/// What is chosen, wherever that was done: in the plan, in a bill, in the flow or in space. It is the content of the
/// session's set of picked objects (PSO), so viewers show it by themselves.
class Choice : public QObject {
    Q_OBJECT

public:
    using Objects = std::vector<QORVar<ModelObject>>;

    explicit Choice(PlanSession& session);

    /// Chooses an object, null for none, or several in an order of which the last is the present one.
    void choose(ModelObject* object);
    void choose(const std::vector<ModelObject*>& objects);

    const Objects& objects() const { return objects_; }
    bool contains(const ModelObject* object) const;

    /// The object whose properties are shown; null when nothing is chosen.
    ModelObject* present() const { return objects_.empty() ? nullptr : objects_.back().Get(); }

Q_SIGNALS:
    void changed();

private:
    QORXSO* picks() const;
    void listen();
    void followPicks();
    void dropLeft();

    PlanSession& session_;
    Objects objects_;
};

} // namespace planner::desktop
