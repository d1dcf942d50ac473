#include "planner/desktop/properties/PropertyPane.h"

#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/properties/Form.h"
#include "planner/desktop/widgets/Note.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace planner::desktop {

PropertyPane::PropertyPane(PlanSession& session, Choice& choice, QWidget* parent)
    : QScrollArea(parent), session_(session), choice_(choice) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(&choice_, &Choice::changed, this, &PropertyPane::rebuild);
    connect(&session_, &PlanSession::changed, this, &PropertyPane::refresh);
    connect(&session_, &PlanSession::replaced, this, &PropertyPane::rebuild);
    rebuild();
}

void PropertyPane::rebuild() {
    if (QWidget* const page = takeWidget()) {
        // What was typed goes to the object that it was typed for; a row may be what called us.
        if (QWidget* const field = page->focusWidget()) {
            field->clearFocus();
        }
        page->hide();
        page->deleteLater();
    }
    shown_ = choice_.present();
    readers_.clear();
    if (!shown_) {
        setWidget(new Note("Choose something in the plan, in a bill, in the flow or in space to see its properties."));
        return;
    }
    auto* const page = new QWidget;
    auto* const rows = new QFormLayout;
    auto* const column = new QVBoxLayout(page);
    column->addLayout(rows);
    column->addStretch(1);
    rows->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
    Form form{session_, choice_, *rows, readers_};
    ModelObject& object = *shown_;
    form.addFact("", [&object] { return QString(sortText(object.sort())).section(' ', 1); });
    if (object.sort() != Sort::Behaviour) {
        form.addText(
                "Name", [&object] { return QString::fromStdString(object.name()); },
                [&object](PlanEditor& editor, const std::string& text) { editor.rename(object, text); })
            ->setObjectName("name");
    }
    form.addText(
            "Id", [&object] { return QString::fromStdString(object.id()); },
            [&object](PlanEditor& editor, const std::string& text) { editor.changeId(object, text); })
        ->setObjectName("id");
    if (&object == session_.plan().process()) {
        addPlanRows(form);
    }
    if (object.sort() == Sort::Activity) {
        addActivityRows(form, static_cast<Activity&>(object));
    }
    if (object.sort() == Sort::Item) {
        addItemRows(form, static_cast<Item&>(object));
    } else {
        addFlowRows(form, static_cast<FlowObject&>(object));
    }
    setWidget(page);
}

void PropertyPane::refresh() {
    if (shown_ == choice_.present()) {
        for (const auto& read : readers_) {
            read();
        }
    }
}

} // namespace planner::desktop
