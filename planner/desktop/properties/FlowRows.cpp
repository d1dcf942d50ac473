// Rows for what has a place in the flow: kind and type of activities, the links that come in and go out.

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/properties/ObjectRows.h"

#include <QComboBox>
#include <QLineEdit>

namespace planner::desktop {

namespace {

void addLinks(Form& form, FlowObject& object, const QString& label, bool incoming) {
    const auto ends = [&object, incoming] {
        ObjectRows::Objects found;
        for (const Link* const link : incoming ? object.linksIn() : object.linksOut()) {
            found.push_back(incoming ? link->from : link->to);
        }
        return found;
    };
    const auto remove = [&object, incoming, ends, &session = form.session](std::size_t position) {
        auto& end = static_cast<FlowObject&>(*ends()[position]);
        session.perform(
            [&](PlanEditor& editor) { incoming ? editor.removeLink(end, object) : editor.removeLink(object, end); });
    };
    auto* const list = new ObjectRows(form, "Remove Link", ends, remove);
    list->setObjectName(incoming ? "links-in" : "links-out");
    form.rows.addRow(label, list);
}

/// Text for an optional value: an empty one is none.
std::optional<std::string> given(const std::string& text) {
    return text.empty() ? std::nullopt : std::optional(text);
}

} // namespace

void addActivityRows(Form& form, Activity& activity) {
    auto* const kinds = new QComboBox(form.rows.parentWidget());
    kinds->setObjectName("kind");
    for (const std::string_view kind : kActivityKinds) {
        const QString text = QString::fromUtf8(kind.data());
        kinds->addItem(icon(text), text);
    }
    form.rows.addRow("Kind", kinds);
    form.follow([kinds, &activity] { kinds->setCurrentIndex(static_cast<int>(activity.kind())); });
    QObject::connect(kinds, &QComboBox::activated, kinds, [kinds, &activity, &session = form.session](int index) {
        if (!session.perform([&](PlanEditor& editor) { editor.setKind(activity, static_cast<ActivityKind>(index)); })) {
            kinds->setCurrentIndex(static_cast<int>(activity.kind()));
        }
    });
    const auto read = [&activity] {
        return QString::fromStdString(activity.ownType().value_or(""));
    };
    QLineEdit* const type = form.addText("Type", read, [&activity](PlanEditor& editor, const std::string& text) {
        editor.setType(activity, given(text));
    });
    form.follow([type, &activity] { type->setPlaceholderText(QString::fromStdString(activity.type())); });
}

void addPlanRows(Form& form) {
    const Plan& plan = form.session.plan();
    QLineEdit* const title = form.addText(
        "Plan", [&plan] { return QString::fromStdString(plan.ownTitle.value_or("")); },
        [](PlanEditor& editor, const std::string& text) { editor.setTitle(given(text)); });
    title->setPlaceholderText(QString::fromStdString(plan.title()));
    title->setToolTip("Title of the plan");
}

void addFlowRows(Form& form, FlowObject& object) {
    form.addHeading("Links");
    addLinks(form, object, "Comes after", true);
    addLinks(form, object, "Goes before", false);
}

} // namespace planner::desktop
