#include "planner/desktop/plan/PlanCommands.h"

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/FreeId.h"
#include "planner/desktop/plan/PlanSession.h"

#include "planner/model/Contents.h"

#include <QAction>
#include <QKeySequence>

namespace planner::desktop {

namespace {

constexpr std::array<const char*, kItemKinds.size()> kItemTexts{"Add &Product", "Add &Assembly", "Add &Fastener",
                                                                "Add &Tool or Other Item"};

constexpr std::array<const char*, kActivityKinds.size()> kKindTexts{"&Activity", "&Loading Activity", "&Station",
                                                                    "&Grouping", "L&ogical Node"};

Behaviour* behaviourOf(ModelObject* object) {
    return object && object->sort() == Sort::Resource ? static_cast<Resource*>(object)->behaviour() : nullptr;
}

bool isInnerActivity(const ModelObject* object) {
    return object && object->sort() == Sort::Activity && static_cast<const Activity*>(object)->container();
}

/// Relation in which a new item comes to the owner.
Relation firstRelation(const ModelObject& owner, ItemKind kind) {
    if (owner.sort() == Sort::Behaviour) {
        return Relation::Assigned;
    }
    return kind == ItemKind::Fastener ? Relation::Items : Relation::FirstAssigned;
}

/// Calls visit(list) with the list in which an activity or a resource stands; for anything else it isn't called.
template <class Visit>
void visitSiblings(Plan& plan, ModelObject* object, Visit visit) {
    if (isInnerActivity(object)) {
        visit(activitiesIn(*static_cast<Activity*>(object)->container())->entries());
    } else if (object && object->sort() == Sort::Resource) {
        auto* const parent = static_cast<Resource*>(static_cast<Resource*>(object)->container());
        parent ? visit(parent->children.entries()) : visit(plan.resources.entries());
    }
}

/// The position that lies so far from that of an object among its siblings; none outside of them.
std::optional<std::size_t> positionFrom(Plan& plan, ModelObject* object, std::ptrdiff_t by) {
    std::optional<std::size_t> position;
    visitSiblings(plan, object, [&](const auto& siblings) {
        const auto at = std::find(siblings.begin(), siblings.end(), object) - siblings.begin() + by;
        if (at >= 0 && at < static_cast<std::ptrdiff_t>(siblings.size())) {
            position = static_cast<std::size_t>(at);
        }
    });
    return position;
}

/// What stands behind an activity in its container; null at the end.
Activity* behind(Activity& activity) {
    const auto& siblings = activitiesIn(*activity.container())->entries();
    const auto found = std::find(siblings.begin(), siblings.end(), &activity);
    return found + 1 == siblings.end() ? nullptr : *(found + 1);
}

/// Puts a step into the flow behind another: what came behind that one alone comes behind the new one.
void linkIn(PlanEditor& editor, Activity& before, Activity& added) {
    FlowObject* const next = before.linksOut().size() == 1 ? before.linksOut().entries().front()->to : nullptr;
    if (next) {
        editor.removeLink(before, *next);
        editor.addLink(added, *next);
    }
    editor.addLink(before, added);
}

} // namespace

PlanCommands::PlanCommands(PlanSession& session, Choice& choice, QObject* parent)
    : QObject(parent), addStep(make("Add &Step", "add-step", QKeySequence("Ctrl+Return"), &PlanCommands::runAddStep)),
      addInside(make("Add Step &Inside", "grouping", QKeySequence("Ctrl+Shift+Return"), &PlanCommands::runAddInside)),
      addResource(make("Add &Resource", "add-resource", QKeySequence("Ctrl+Shift+R"), &PlanCommands::runAddResource)),
      addBehaviour(make("Add &Behaviour", "behaviour", {}, &PlanCommands::runAddBehaviour)),
      moveUp(make("Move &Up", {}, QKeySequence("Ctrl+Shift+Up"), &PlanCommands::runMoveUp)),
      moveDown(make("Move &Down", {}, QKeySequence("Ctrl+Shift+Down"), &PlanCommands::runMoveDown)),
      link(make("&Link in Order", "link", QKeySequence("Ctrl+L"), &PlanCommands::runLink)), addItem(), setKind(),
      session_(session), choice_(choice) {
    for (std::size_t kind = 0; kind < kItemKinds.size(); ++kind) {
        addItem[kind] = new QAction(icon(QString::fromUtf8(kItemKinds[kind].data())), kItemTexts[kind], this);
        connect(addItem[kind], &QAction::triggered, this, [this, kind] { runAddItem(static_cast<ItemKind>(kind)); });
    }
    for (std::size_t kind = 0; kind < kActivityKinds.size(); ++kind) {
        setKind[kind] = new QAction(icon(QString::fromUtf8(kActivityKinds[kind].data())), kKindTexts[kind], this);
        connect(setKind[kind], &QAction::triggered, this,
                [this, kind] { runSetKind(static_cast<ActivityKind>(kind)); });
    }
    addItem[0]->setShortcut(QKeySequence("Ctrl+I"));
    addStep->setToolTip("Add a step behind the chosen one, linked into the flow");
    link->setToolTip("Link the chosen steps, each to the next in the order in which they were chosen");
    connect(&choice_, &Choice::changed, this, &PlanCommands::enable);
    connect(&session_, &PlanSession::changed, this, &PlanCommands::enable);
    enable();
}

QAction* PlanCommands::make(const QString& text, const QString& iconName, const QKeySequence& keys,
                            void (PlanCommands::*run)()) {
    auto* const action = new QAction(icon(iconName), text, this);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void PlanCommands::enable() {
    ModelObject* const present = choice_.present();
    addInside->setEnabled(present && (activitiesIn(*present) || behaviourOf(present)));
    addBehaviour->setEnabled(present && present->sort() == Sort::Resource && !behaviourOf(present));
    moveUp->setEnabled(positionFrom(session_.plan(), present, -1).has_value());
    moveDown->setEnabled(positionFrom(session_.plan(), present, 1).has_value());
    link->setEnabled(choice_.objects().size() > 1);
    for (QAction* const action : setKind) {
        action->setEnabled(present && present->sort() == Sort::Activity);
    }
}

void PlanCommands::addStepTo(FlowObject& container, Activity* before) {
    Activity* added = nullptr;
    const bool done = session_.perform([&](PlanEditor& editor) {
        const FreeId made = freeId(editor.plan(), "step");
        editor.group("Add \"" + made.name + '"', [&] {
            const auto& siblings = activitiesIn(container)->entries();
            Activity* const next = before ? behind(*before) : nullptr;
            const std::size_t position =
                next ? static_cast<std::size_t>(std::find(siblings.begin(), siblings.end(), next) - siblings.begin())
                     : kAtEnd;
            Activity* const last = siblings.empty() ? nullptr : siblings.back();
            added = &editor.addActivity(container, {made.id, made.name}, position);
            if (before) {
                linkIn(editor, *before, *added);
            } else if (last && last->linksOut().empty()) {
                editor.addLink(*last, *added);
            }
        });
    });
    if (done) {
        Q_EMIT this->added(added, nullptr);
    }
}

void PlanCommands::runAddStep() {
    ModelObject* const present = choice_.present();
    if (isInnerActivity(present)) {
        auto& before = static_cast<Activity&>(*present);
        addStepTo(static_cast<FlowObject&>(*before.container()), &before);
    } else if (present && present->sort() == Sort::Behaviour) {
        addStepTo(static_cast<FlowObject&>(*present), nullptr);
    } else {
        Behaviour* const behaviour = behaviourOf(present);
        addStepTo(behaviour ? static_cast<FlowObject&>(*behaviour) : *session_.plan().process(), nullptr);
    }
}

void PlanCommands::runAddInside() {
    ModelObject* const present = choice_.present();
    if (Behaviour* const behaviour = behaviourOf(present)) {
        addStepTo(*behaviour, nullptr);
    } else if (present) {
        addStepTo(static_cast<FlowObject&>(*present), nullptr);
    }
}

void PlanCommands::runAddResource() {
    ModelObject* const present = choice_.present();
    auto* const parent = present && present->sort() == Sort::Resource ? static_cast<Resource*>(present) : nullptr;
    Resource* made = nullptr;
    const bool done = session_.perform([&](PlanEditor& editor) {
        const FreeId free = freeId(editor.plan(), "resource");
        made = &editor.addResource(parent, {free.id, free.name});
    });
    if (done) {
        Q_EMIT added(made, nullptr);
    }
}

void PlanCommands::runAddBehaviour() {
    auto& resource = static_cast<Resource&>(*choice_.present());
    Behaviour* made = nullptr;
    const bool done = session_.perform([&](PlanEditor& editor) {
        made = &editor.addBehaviour(resource, freeId(editor.plan(), resource.id() + "-behaviour").id);
    });
    if (done) {
        Q_EMIT added(made, nullptr);
    }
}

void PlanCommands::move(std::ptrdiff_t by) {
    ModelObject* const present = choice_.present();
    const auto position = positionFrom(session_.plan(), present, by);
    if (!position) {
        return;
    }
    session_.perform([&](PlanEditor& editor) {
        if (present->sort() == Sort::Activity) {
            auto& activity = static_cast<Activity&>(*present);
            editor.moveActivity(activity, static_cast<FlowObject&>(*activity.container()), *position);
        } else {
            auto& resource = static_cast<Resource&>(*present);
            editor.moveResource(resource, static_cast<Resource*>(resource.container()), *position);
        }
    });
}

void PlanCommands::runLink() {
    const Choice::Objects chosen = choice_.objects();
    session_.perform([&](PlanEditor& editor) {
        editor.group("Link " + std::to_string(chosen.size()) + " objects", [&] {
            for (std::size_t next = 1; next < chosen.size(); ++next) {
                for (const auto& object : {chosen[next - 1], chosen[next]}) {
                    if (object->sort() == Sort::Item) {
                        throw EditError(EditError::Fault::WrongSort,
                                        "items have no place in the flow; link activities, resources, behaviours");
                    }
                }
                editor.addLink(static_cast<FlowObject&>(*chosen[next - 1].Get()),
                               static_cast<FlowObject&>(*chosen[next].Get()));
            }
        });
    });
}

void PlanCommands::runAddItem(ItemKind kind) {
    ModelObject* const present = choice_.present();
    const bool hasLists = present && activitiesIn(*present);
    Item* made = nullptr;
    const bool done = session_.perform([&](PlanEditor& editor) {
        const FreeId free = freeId(editor.plan(), std::string(kindText(kind)));
        editor.group("Add \"" + free.name + '"', [&] {
            made = &editor.addItem({free.id, kind, free.name});
            if (hasLists) {
                editor.putItem(*present, firstRelation(*present, kind), *made);
            }
        });
    });
    if (done) {
        Q_EMIT added(made, hasLists ? present : nullptr);
    }
}

void PlanCommands::runSetKind(ActivityKind kind) {
    const Choice::Objects chosen = choice_.objects();
    session_.perform([&](PlanEditor& editor) {
        editor.group("Make " + std::string(kindText(kind)), [&] {
            for (const auto& object : chosen) {
                if (object->sort() == Sort::Activity) {
                    editor.setKind(static_cast<Activity&>(*object.Get()), kind);
                }
            }
        });
    });
}

} // namespace planner::desktop
