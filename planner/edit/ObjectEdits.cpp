// Names, ids, notes: what all objects have, and the plan itself.

#include "planner/edit/Checks.h"
#include "planner/edit/PlanEditor.h"
#include "planner/file/PlanReader.h"

namespace planner {

/// A resource as a part of a product has its name in the bill, and so has what is nested in such a resource.
ChangeKind PlanEditor::kindOfRenaming(const ModelObject& object) {
    if (object.sort() == Sort::Item) {
        return ChangeKind::ItemChanged;
    }
    if (object.sort() == Sort::Resource) {
        for (const ModelObject* each = &object; each; each = static_cast<const FlowObject*>(each)->container()) {
            if (!mentions_.of(*each).empty()) {
                return ChangeKind::ItemChanged;
            }
        }
    }
    return ChangeKind::Reworded;
}

void PlanEditor::rename(ModelObject& object, std::optional<std::string> name) {
    checkStands(plan(), object);
    if (object.sort() == Sort::Behaviour) {
        throw EditError(EditError::Fault::WrongSort, quoted(object) + " is a behaviour, which can't have a name");
    }
    checkText(name.value_or(""));
    exchange("Rename " + quoted(object), kindOfRenaming(object), object, [&object, name = std::move(name)]() mutable {
        auto before = object.ownName();
        object.setName(std::move(name));
        name = std::move(before);
    });
}

void PlanEditor::changeId(ModelObject& object, const std::string& id) {
    checkStands(plan(), object);
    const bool isBehaviour = object.sort() == Sort::Behaviour;
    if (isBehaviour && id.empty()) {
        const auto& flow = static_cast<const FlowObject&>(object);
        if (!flow.linksIn().empty() || !flow.linksOut().empty()) {
            throw EditError(EditError::Fault::InUse, quoted(object) + " is linked, and can't be without an id");
        }
    } else if (id != object.id()) {
        checkNewId(plan(), id);
    }
    const ChangeKind kind = isBehaviour ? ChangeKind::ListsChanged : kindOfRenaming(object);
    perform("Change the id of " + quoted(object), [&] {
        ownProcess(object, id);
        open_->make(makeExchange(eitherWay(kind), [&plan = plan(), &object, other = id]() mutable {
            std::string before = object.id();
            plan.changeId(object, std::move(other));
            other = std::move(before);
        }));
    });
}

void PlanEditor::setNotes(ModelObject& object, std::string json) {
    checkStands(plan(), object);
    tidyNotes(json);
    exchange("Change the notes of " + quoted(object), ChangeKind::Reworded, object,
             [&object, json = std::move(json)]() mutable {
                 std::string before = object.notes();
                 object.setNotes(std::move(json));
                 json = std::move(before);
             });
}

void PlanEditor::setPlanNotes(std::string json) {
    tidyNotes(json);
    perform("Change the notes of the plan", [&] {
        open_->make(makeExchange(eitherWay(ChangeKind::Reworded),
                                 [&plan = plan(), json = std::move(json)]() mutable { plan.notes.swap(json); }));
    });
}

void PlanEditor::setTitle(std::optional<std::string> title) {
    checkText(title.value_or(""));
    perform("Change the title", [&] {
        open_->make(makeExchange(eitherWay(ChangeKind::Reworded), [&plan = plan(), title = std::move(title)]() mutable {
            plan.ownTitle.swap(title);
            if (plan.processIsDefault()) {
                plan.process()->setName(plan.title());
            }
        }));
    });
}

} // namespace planner
