#include "planner/desktop/properties/ObjectRows.h"

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"

#include <QAction>

#include <algorithm>
#include <utility>

namespace planner::desktop {

namespace {

constexpr int kShownRows = 5;
constexpr int kIcon = 16;

} // namespace

ObjectRows::ObjectRows(Form& form, const QString& removeText, std::function<Objects()> objects, Remove remove)
    : QListWidget(form.rows.parentWidget()), objects_(std::move(objects)), remove_(std::move(remove)) {
    setSizeAdjustPolicy(AdjustToContents);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setIconSize({kIcon, kIcon});
    auto* const taking = new QAction(icon("remove"), removeText, this);
    taking->setShortcut(QKeySequence::Delete);
    taking->setShortcutContext(Qt::WidgetShortcut);
    addAction(taking);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(taking, &QAction::triggered, this, &ObjectRows::removeCurrent);
    connect(this, &QListWidget::itemActivated, this, [this, &choice = form.choice](QListWidgetItem* item) {
        choice.choose(shown_[static_cast<std::size_t>(row(item))]);
    });
    form.follow([this] { read(); });
}

void ObjectRows::read() {
    clear();
    shown_ = objects_();
    for (const ModelObject* const object : shown_) {
        addItem(new QListWidgetItem(iconOf(*object), QString::fromStdString(object->name())));
    }
    if (shown_.empty()) {
        auto* const none = new QListWidgetItem("none");
        none->setFlags(Qt::NoItemFlags);
        addItem(none);
    }
    const int height = std::max(sizeHintForRow(0), fontMetrics().height() + 4); // with a row of text alone
    setFixedHeight(std::min(count(), kShownRows) * height + 2 * frameWidth());
}

void ObjectRows::removeCurrent() {
    if (currentRow() >= 0 && !shown_.empty()) {
        remove_(static_cast<std::size_t>(currentRow()));
    }
}

} // namespace planner::desktop
