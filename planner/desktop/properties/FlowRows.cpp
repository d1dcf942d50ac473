// Rows for what has a place in the flow: kind and type of activities, the links that come in and go out.

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/properties/Form.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

namespace planner::desktop {

namespace {

constexpr int kShownRows = 5;

/// A list of what is linked on one side. Enter or a double click chooses, Delete removes the link.
class LinkRows : public QListWidget {
public:
    LinkRows(Form& form, FlowObject& object, bool incoming)
        : QListWidget(form.rows.parentWidget()), session_(form.session), choice_(form.choice), object_(object),
          incoming_(incoming) {
        setSizeAdjustPolicy(AdjustToContents);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        auto* const remove = new QAction(icon("remove"), "Remove Link", this);
        remove->setShortcut(QKeySequence::Delete);
        remove->setShortcutContext(Qt::WidgetShortcut);
        addAction(remove);
        setContextMenuPolicy(Qt::ActionsContextMenu);
        connect(remove, &QAction::triggered, this, [this] { removeCurrent(); });
        connect(this, &QListWidget::itemActivated, this,
                [this](QListWidgetItem* item) { choice_.choose(&ends_[static_cast<std::size_t>(row(item))].get()); });
    }

    void read() {
        clear();
        ends_.clear();
        for (const Link* const link : incoming_ ? object_.linksIn() : object_.linksOut()) {
            FlowObject& end = incoming_ ? *link->from : *link->to;
            ends_.emplace_back(end);
            addItem(new QListWidgetItem(iconOf(end), QString::fromStdString(end.name())));
        }
        if (ends_.empty()) {
            auto* const none = new QListWidgetItem("none");
            none->setFlags(Qt::NoItemFlags);
            addItem(none);
        }
        const int height = std::max(sizeHintForRow(0), fontMetrics().height());
        setFixedHeight(std::min(count(), kShownRows) * height + 2 * frameWidth());
    }

private:
    void removeCurrent() {
        if (currentRow() < 0 || ends_.empty()) {
            return;
        }
        FlowObject& end = ends_[static_cast<std::size_t>(currentRow())];
        session_.perform(
            [&](PlanEditor& editor) { incoming_ ? editor.removeLink(end, object_) : editor.removeLink(object_, end); });
    }

    PlanSession& session_;
    Choice& choice_;
    FlowObject& object_;
    bool incoming_;
    std::vector<std::reference_wrapper<FlowObject>> ends_;
};

void addLinks(Form& form, FlowObject& object, const QString& label, bool incoming) {
    auto* const list = new LinkRows(form, object, incoming);
    list->setObjectName(incoming ? "links-in" : "links-out");
    form.rows.addRow(label, list);
    form.follow([list] { list->read(); });
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
