#include "planner/desktop/bom/BomSide.h"

#include "planner/desktop/bom/ExportBill.h"
#include "planner/desktop/bom/MatchModel.h"
#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/toolkit/FramePane.h"
#include "planner/desktop/toolkit/TreeView.h"

#include "planner/bill/BillRemarks.h"

#include "QORPlatform/navigation/QORNavigBox.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace planner::desktop {

namespace {

/// Rows that "expand all" opens at most: more than a person reads.
constexpr int kMostRows = 20000;

/// What is selected anew after a choice elsewhere: rows that were made, without opening anything.
std::vector<QORNavigInstance*> madeRows(QORNavigBox& box, const Choice& choice) {
    std::vector<QORNavigInstance*> rows;
    for (const auto& object : choice.objects()) {
        for (const QORNavigRows::Row row : box.GetRows()->FindRows(object.Get())) {
            if (QORNavigInstance* const made = box.GetInstance(row)) {
                rows.push_back(made);
            }
        }
    }
    return rows;
}

} // namespace

BomSide::BomSide(VXMFabBomViewer& window, FramePane& pane, ModelObject& root, Choice& choice, bool hasTree)
    : QWidget(&pane), window_(&window), root_(&root), choice_(choice), tree_(pane.tree()),
      pages_(new QStackedWidget(this)), found_(new QListView(this)), matches_(new MatchModel(this)),
      filter_(new QLineEdit(this)), remark_(new QLabel(this)) {
    filter_->setObjectName("bom-filter");
    filter_->setPlaceholderText("Filter the bill");
    filter_->setClearButtonEnabled(true);
    filter_->addAction(icon("filter"), QLineEdit::LeadingPosition);
    found_->setModel(matches_);
    found_->setUniformItemSizes(true);
    found_->setIconSize({16, 16});
    found_->setObjectName("bom-matches");
    tree_->setObjectName("bom-tree");
    tree_->setAccessibleName("Bill");
    remark_->setWordWrap(true);
    remark_->setMargin(6);
    remark_->setObjectName("bom-remark");
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(filter_);
    layout->addWidget(pages_);
    layout->addWidget(remark_);
    pages_->addWidget(tree_);
    pages_->addWidget(found_);
    pane.setTreeSide(this);
    setVisible(hasTree);
    connect(filter_, &QLineEdit::textChanged, this, &BomSide::search);
    connect(filter_, &QLineEdit::returnPressed, found_, [this] { found_->setFocus(); });
    connect(found_, &QListView::activated, this, [this](const QModelIndex& index) {
        const std::vector<int> path = matches_->pathOf(index);
        filter_->clear();
        tree_->reveal(path);
    });
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tree_, &QWidget::customContextMenuRequested, this,
            [this](QPoint place) { Q_EMIT menuAsked(tree_->viewport()->mapToGlobal(place)); });
    connect(tree_, &TreeView::picked, this, &BomSide::chooseRow);
    connect(tree_, &TreeView::refilled, this, &BomSide::followRefill);
    connect(&choice_, &Choice::changed, this, &BomSide::showChoice);
    constexpr int kPause = 250; // milliseconds after an edit: steps are gone through for it
    remarkTimer_.setSingleShot(true);
    remarkTimer_.setInterval(kPause);
    connect(&remarkTimer_, &QTimer::timeout, this, &BomSide::remark);
    remark();
    if (tree_->model()->rowCount() > 0) {
        tree_->setExpanded(tree_->model()->index(0, 0), true);
    }
}

Bill BomSide::bill() const {
    const VXMFabBomViewer* const window = window_.Get();
    VXMBomGenerator* const generator = window ? window->GetGenerator() : nullptr;
    return generator ? readBill(generator->GetBom(0), generator->GetPreviewObjects()) : Bill();
}

QString BomSide::heading() const {
    return QString::fromStdString(root_->name());
}

void BomSide::followRefill() {
    remarkSoon();
    if (!filter_->text().isEmpty()) {
        search();
    }
}

QString BomSide::remarkText() const {
    const VXMFabBomViewer* const window = window_.Get();
    if (!window || !window->GetGenerator()) {
        return {};
    }
    if (window->IsOutOfDate()) {
        return "This bill is of an earlier state of the plan: its last computation was cancelled or failed.";
    }
    const bool isEmpty = window->GetGenerator()->GetPreviewObjects().Size() == 0;
    const auto known = remarkOn(*window->GetGenerator(), stepsFrom(*root_.Get()), isEmpty);
    if (known) {
        return QString::fromStdString(*known);
    }
    return isEmpty ? "The bill is empty: give items to the steps on the way to the end of the flow." : QString();
}

void BomSide::remark() {
    remark_->setText(remarkText());
    remark_->setVisible(!remark_->text().isEmpty());
}

void BomSide::search() {
    const bool isSearching = !filter_->text().isEmpty();
    if (isSearching) {
        matches_->find(bill(), filter_->text());
    }
    pages_->setCurrentWidget(isSearching ? static_cast<QWidget*>(found_) : tree_);
}

void BomSide::chooseRow() {
    if (!tree_->box() || following_) {
        return;
    }
    const QScopedValueRollback<bool> following(following_, true);
    std::vector<ModelObject*> objects;
    for (const QORNavigInstance* const row : tree_->box()->GetSelection()) {
        if (ModelObject* const object = ModelObject::behind(tree_->box()->GetObject(*row))) {
            objects.push_back(object);
        }
    }
    choice_.choose(objects);
}

void BomSide::showChoice() {
    if (!following_ && tree_->box() && tree_->box()->GetRows()) {
        const QScopedValueRollback<bool> following(following_, true);
        tree_->box()->SetSelection(madeRows(*tree_->box(), choice_));
    }
}

bool BomSide::reveal(const ModelObject& object) {
    QORNavigBox* const box = tree_->box();
    if (!box || !box->GetRows()) {
        return false;
    }
    const auto rows = box->GetRows()->FindRows(const_cast<ModelObject*>(&object));
    if (rows.empty()) {
        return false;
    }
    filter_->clear();
    if (QORNavigInstance* const row = box->Reveal(rows.front())) {
        box->SetSelection({row});
        return true;
    }
    return false;
}

void BomSide::expandAll() {
    if (!tree_->openAll(kMostRows)) {
        Q_EMIT said(QString("The bill is long: the first %1 rows are open.").arg(kMostRows));
    }
}

void BomSide::collapseAll() {
    tree_->collapseAll();
}

void BomSide::copy() const {
    QApplication::clipboard()->setText(billText(bill(), Format::Tree, heading()));
}

void BomSide::exportBill() {
    const QString problem = exportBillFrom(this, bill(), heading());
    if (!problem.isEmpty()) {
        Q_EMIT said(problem);
    }
}

} // namespace planner::desktop
