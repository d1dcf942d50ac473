// What a fastener joins: a list, and a field below it that takes the name or id of a further item, with all items of
// the plan to choose from as one types.

#include "planner/desktop/properties/ObjectRows.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QLineEdit>
#include <QStringListModel>

#include <algorithm>
#include <array>

namespace planner::desktop {

namespace {

/// An item as a person tells it from others.
QString toldApart(const Item& item) {
    const QString id = QString::fromStdString(item.id());
    const QString name = QString::fromStdString(item.name());
    return name == id ? id : name + " (" + id + ')';
}

class JoinField : public QLineEdit {
public:
    JoinField(Form& form, Fastener& fastener)
        : QLineEdit(form.rows.parentWidget()), session_(form.session), fastener_(fastener),
          completer_(new QCompleter(this)), texts_(new QStringListModel(completer_)) {
        completer_->setModel(texts_);
        completer_->setFilterMode(Qt::MatchContains);
        completer_->setCaseSensitivity(Qt::CaseInsensitive);
        setCompleter(completer_);
        // The completer puts the text that is chosen into the field afterwards.
        connect(completer_, qOverload<const QString&>(&QCompleter::activated), this, &JoinField::join,
                Qt::QueuedConnection);
        connect(this, &QLineEdit::returnPressed, this, [this] {
            if (!completer_->popup()->currentIndex().isValid()) { // else that one is chosen
                join(text());
            }
        });
    }

protected:
    /// Texts for all items are made when somebody is about to type.
    void focusInEvent(QFocusEvent* event) override {
        QStringList texts;
        for (const Item* const item : session_.plan().items) {
            if (item != &fastener_) {
                texts << toldApart(*item);
            }
        }
        texts_->setStringList(texts);
        QLineEdit::focusInEvent(event);
    }

private:
    /// The first item of that id, else of that text in the list, else of that name; null for none.
    Item* find(const QString& text) const {
        const std::string plain = text.toStdString();
        const auto& items = session_.plan().items.entries();
        const std::array<std::function<bool(const Item&)>, 3> ways{
            [&](const Item& item) { return item.id() == plain; },
            [&](const Item& item) { return toldApart(item) == text; },
            [&](const Item& item) {
                return item.name() == plain;
            }};
        for (const auto& isMeant : ways) {
            const auto found =
                std::find_if(items.begin(), items.end(), [&](const Item* item) { return isMeant(*item); });
            if (found != items.end()) {
                return *found;
            }
        }
        return nullptr;
    }

    void join(const QString& text) {
        if (text.trimmed().isEmpty()) {
            return;
        }
        Item* const item = find(text.trimmed());
        if (!item) {
            Q_EMIT session_.refused("No item is called \"" + text + "\".");
        } else if (session_.perform([&](PlanEditor& editor) { editor.putItem(fastener_, Relation::Joins, *item); })) {
            clear();
        }
    }

    PlanSession& session_;
    Fastener& fastener_;
    QCompleter* completer_;
    QStringListModel* texts_;
};

} // namespace

void addJoinRows(Form& form, Fastener& fastener) {
    const auto remove = [&fastener, &session = form.session](std::size_t position) {
        session.perform([&](PlanEditor& editor) { editor.takeItem(fastener, Relation::Joins, position); });
    };
    auto* const list = new ObjectRows(
        form, "Take Out", [&fastener] { return fastener.joins.entries(); }, remove);
    list->setObjectName("joins");
    form.rows.addRow("Joins", list);
    auto* const field = new JoinField(form, fastener);
    field->setObjectName("join");
    field->setPlaceholderText("Add: name or id of an item");
    field->setAccessibleName("Item that the fastener joins, too");
    form.rows.addRow(QString(), field);
}

} // namespace planner::desktop
