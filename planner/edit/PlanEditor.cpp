#include "planner/edit/PlanEditor.h"

#include "planner/file/JsonText.h"
#include "planner/model/Contents.h"

#include "QORPlatform/notification/QORSPPActivityNotification.h"

#include <exception>

namespace planner {

PlanEditor::PlanEditor(PlanDocument& document) : document_(&document), mentions_(document.plan()) {
    if (!document.takeForEditing()) {
        throw EditError(EditError::Fault::InUse, "the plan " + inQuotes(document.plan().title()) +
                                                     " has an editor already; expected one at a time");
    }
}

PlanEditor::~PlanEditor() {
    document_->endEditing();
}

ModelObject& PlanEditor::object(const std::string& id) const {
    ModelObject* const found = plan().find(id);
    if (!found) {
        throw EditError(EditError::Fault::UnknownObject, inQuotes(id) + " is not in this plan");
    }
    return *found;
}

void PlanEditor::group(const std::string& text, const std::function<void()>& edits) {
    perform(text, edits);
}

void PlanEditor::finishStep() {
    UndoStep step = std::move(*open_);
    open_.reset();
    if (step.size() == 0) {
        return;
    }
    const ChangeKinds kinds = step.kindsMade();
    stack_.push(std::move(step));
    publish(kinds);
}

bool PlanEditor::undo() {
    if (!canUndo()) {
        return false;
    }
    publish(stack_.undo());
    return true;
}

bool PlanEditor::redo() {
    if (!canRedo()) {
        return false;
    }
    publish(stack_.redo());
    return true;
}

/// Uses nothing of the editor once it tells: a subscriber may end it.
void PlanEditor::publish(const ChangeKinds& kinds) const {
    const QORVar<QOREventSubscriber> publisher(plan().process()->GetEventPublisher());
    publisher->InGroup([&] { // so that a view that follows several kinds does it once
        std::exception_ptr first;
        for (const ChangeKinds::Told& told : kinds.told()) {
            try {
                QORListValQORBaseUnknown_var owners;
                for (ModelObject* owner : told.owners) {
                    owners.Append(QORBaseUnknown_var(owner));
                }
                QORSPPActivityNotificationDispatcher::Dispatch(*publisher.Get(), static_cast<int>(told.kind),
                                                               std::move(owners));
            } catch (...) {
                first = first ? first : std::current_exception();
            }
        }
        if (first) {
            std::rethrow_exception(first);
        }
    });
}

namespace {

/// An id that no object of the plan has, and that isn't the reserved one.
std::string freeId(const Plan& plan, const std::string& reserved) {
    std::string id = "process";
    for (int number = 2; plan.find(id) || id == reserved; ++number) {
        id = "process-" + std::to_string(number);
    }
    return id;
}

} // namespace

void PlanEditor::ownProcess(const ModelObject& edited, const std::string& reservedId) {
    Plan& plan = this->plan();
    if (&edited == plan.process() && plan.processIsDefault()) {
        open_->make(makeExchange({}, [&plan, reservedId] {
            if (plan.processIsDefault()) {
                plan.ownProcess(freeId(plan, reservedId));
            } else {
                plan.disownProcess();
            }
        }));
    }
}

void PlanEditor::makeStanding(std::vector<ModelObject*> objects, Standing::Direction direction) {
    open_->make(std::make_unique<Standing>(plan(), mentions_, std::move(objects), direction));
}

std::unique_ptr<Change> PlanEditor::makeListMove(KindPair kinds, ModelObject& object, std::optional<Spot> from,
                                                 std::optional<Spot> to) {
    return std::make_unique<ListMove>(kinds, mentions_, object, from, to);
}

void PlanEditor::moveInLists(KindPair kinds, ModelObject& object, std::optional<Spot> from, std::optional<Spot> to) {
    open_->make(makeListMove(kinds, object, from, to));
}

/// Takes what names a top or something below it (links, lists) out of the plan, then the top out of what it stands in,
/// then all of them out of the plan.
void PlanEditor::takeContents(FlowObject& top, std::unique_ptr<Change> takeOut) {
    std::vector<ModelObject*> objects;
    walkContents(top, [&](FlowObject& object, ModelObject*) { objects.push_back(&object); });
    for (ModelObject* object : objects) {
        const auto& flow = static_cast<const FlowObject&>(*object);
        while (!flow.linksOut().empty()) {
            takeLink(*flow.linksOut().entries().back());
        }
        while (!flow.linksIn().empty()) {
            takeLink(*flow.linksIn().entries().back());
        }
        if (object->sort() == Sort::Resource) {
            takeMentions(*object);
        }
    }
    open_->make(std::move(takeOut));
    makeStanding(std::move(objects), Standing::Leaving);
}

} // namespace planner
