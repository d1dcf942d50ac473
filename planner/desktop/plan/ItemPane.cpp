#include "planner/desktop/plan/ItemPane.h"

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/ItemListModel.h"
#include "planner/desktop/plan/PlanSession.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace planner::desktop {

ItemPane::ItemPane(PlanSession& session, Choice& choice, const Findings& findings, QWidget* parent)
    : QWidget(parent), session_(session), choice_(choice), model_(new ItemListModel(session, findings, this)),
      found_(new QSortFilterProxyModel(this)), search_(new QLineEdit(this)), list_(new QListView(this)) {
    search_->setClearButtonEnabled(true);
    search_->addAction(icon("filter"), QLineEdit::LeadingPosition);
    found_->setSourceModel(model_);
    found_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    list_->setObjectName("item-list");
    list_->setAccessibleName("Items");
    list_->setModel(found_);
    list_->setUniformItemSizes(true);
    list_->setIconSize({16, 16});
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    list_->setDragEnabled(true);
    list_->installEventFilter(this);
    setFocusProxy(list_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(search_);
    layout->addWidget(list_);
    connect(search_, &QLineEdit::textChanged, found_, &QSortFilterProxyModel::setFilterFixedString);
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ItemPane::chooseSelected);
    connect(&choice_, &Choice::changed, this, &ItemPane::showChoice);
    for (const auto rowsChange : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(model_, rowsChange, this, &ItemPane::tellWhetherEmpty);
    }
    connect(model_, &QAbstractItemModel::modelReset, this, &ItemPane::tellWhetherEmpty);
    tellWhetherEmpty();
}

void ItemPane::tellWhetherEmpty() {
    search_->setPlaceholderText(model_->rowCount() > 0 ? "Search items" : "No items yet: Add Product (Ctrl+I)");
}

bool ItemPane::hasKeyboard() const {
    return list_->hasFocus();
}

std::vector<ModelObject*> ItemPane::selected() const {
    std::vector<ModelObject*> items;
    for (const QModelIndex& index : list_->selectionModel()->selectedIndexes()) {
        items.push_back(model_->itemAt(found_->mapToSource(index)));
    }
    return items;
}

void ItemPane::chooseSelected() {
    if (!following_) {
        const QScopedValueRollback<bool> following(following_, true);
        choice_.choose(selected());
    }
}

void ItemPane::showChoice() {
    if (following_) {
        return;
    }
    const QScopedValueRollback<bool> following(following_, true);
    QItemSelection selection;
    QModelIndex last;
    for (const auto& object : choice_.objects()) {
        const QModelIndex index =
            object->sort() == Sort::Item ? found_->mapFromSource(model_->indexOf(*object.Get())) : QModelIndex();
        selection.select(index, index);
        last = index;
    }
    list_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (last.isValid()) {
        list_->selectionModel()->setCurrentIndex(last, QItemSelectionModel::NoUpdate);
        list_->scrollTo(last);
    }
}

bool ItemPane::reveal(ModelObject& item) {
    if (item.sort() != Sort::Item || !model_->indexOf(item).isValid()) {
        return false;
    }
    if (!found_->mapFromSource(model_->indexOf(item)).isValid()) {
        search_->clear();
    }
    const QModelIndex index = found_->mapFromSource(model_->indexOf(item));
    list_->setCurrentIndex(index);
    list_->scrollTo(index, QAbstractItemView::PositionAtCenter);
    return true;
}

void ItemPane::editName(ModelObject& item) {
    if (reveal(item)) {
        list_->setFocus();
        list_->edit(list_->currentIndex());
    }
}

std::vector<PlanDrag::Entry> ItemPane::selectedRows() const {
    std::vector<PlanDrag::Entry> rows;
    for (ModelObject* const item : selected()) {
        rows.push_back({PlanRow{item}});
    }
    return rows;
}

void ItemPane::removeSelected() {
    const std::vector<PlanDrag::Entry> rows = selectedRows();
    if (!rows.empty()) {
        removeRows(session_, rows);
    }
}

void ItemPane::setMenu(QMenu* menu) {
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list_, &QWidget::customContextMenuRequested, menu,
            [this, menu](QPoint place) { menu->popup(list_->viewport()->mapToGlobal(place)); });
}

bool ItemPane::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete)) {
        removeSelected();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace planner::desktop
