#include "planner/desktop/properties/Form.h"

#include <QLabel>
#include <QLineEdit>

namespace planner::desktop {

void Form::follow(std::function<void()> read) {
    read();
    readers.push_back(std::move(read));
}

QLineEdit* Form::addText(const QString& label, const Read& read, const Write& write) {
    auto* const field = new QLineEdit(rows.parentWidget());
    rows.addRow(label, field);
    follow([field, read] {
        if (field->text() != read()) {
            field->setText(read());
        }
    });
    QObject::connect(field, &QLineEdit::editingFinished, field, [field, read, write, &plan = session] {
        const std::string text = field->text().toStdString();
        if (field->text() != read() && !plan.perform([&](PlanEditor& editor) { write(editor, text); })) {
            field->setText(read());
        }
    });
    return field;
}

void Form::addFact(const QString& label, const Read& read) {
    auto* const fact = new QLabel(rows.parentWidget());
    fact->setTextInteractionFlags(Qt::TextSelectableByMouse);
    fact->setWordWrap(true);
    rows.addRow(label, fact);
    follow([fact, read] { fact->setText(read()); });
}

void Form::addHeading(const QString& text) {
    auto* const heading = new QLabel(text, rows.parentWidget());
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    heading->setContentsMargins(0, 8, 0, 0);
    rows.addRow(heading);
}

} // namespace planner::desktop
