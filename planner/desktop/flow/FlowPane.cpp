#include "planner/desktop/flow/FlowPane.h"

#include "planner/desktop/bom/BomDesk.h"
#include "planner/desktop/flow/FlowView.h"
#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/PlanDrop.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/questions/Findings.h"
#include "planner/desktop/widgets/Note.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace planner::desktop {

namespace {

/// Of larger flows a part is drawn: nobody finds his way among more boxes, and each edit makes them anew.
constexpr std::size_t kDrawn = 1500;

constexpr double kZoomStep = 1.25;

QString pathText(const FlowObject& owner) {
    QString text = QString::fromStdString(owner.name()).toHtmlEscaped();
    text = "<b>" + text + "</b>";
    for (const FlowObject* above = flowAbove(owner); above; above = flowAbove(*above)) {
        text = QString::fromStdString(above->name()).toHtmlEscaped() + " › " + text;
    }
    return text;
}

} // namespace

FlowPane::FlowPane(PlanSession& session, Choice& choice, const Findings& findings, WalkedBy walkedBy, QWidget* parent)
    : QWidget(parent), session_(session), choice_(choice), path_(new QLabel), hint_(new QLabel),
      stack_(new QStackedWidget), note_(new Note({})), view_(new FlowView), walkedBy_(std::move(walkedBy)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(makeHead());
    column->addWidget(stack_, 1);
    constexpr int kLines = 11;
    stack_->setMinimumHeight(kLines * fontMetrics().height());
    stack_->addWidget(note_);
    stack_->addWidget(view_);
    setFocusProxy(view_);
    view_->setRemarks([&findings](const ModelObject& step) { return findings.textOn(step); });
    connect(&findings, &Findings::changed, this, &FlowPane::scheduleRefresh);
    refreshing_.setSingleShot(true);
    connect(&refreshing_, &QTimer::timeout, this, &FlowPane::refresh);
    connect(&session_, &PlanSession::aboutToReplace, this, &FlowPane::drop);
    connect(&session_, &PlanSession::replaced, this, &FlowPane::scheduleRefresh);
    connect(&session_, &PlanSession::changed, this, [this] {
        way_.reset();
        scheduleRefresh();
    });
    connect(&choice_, &Choice::changed, this, &FlowPane::followChoice);
    connect(view_, &FlowView::chosen, this, &FlowPane::choose);
    connect(view_, &FlowView::linkDrawn, this, [this](ModelObject* from, ModelObject* to) { link(*from, *to); });
    connect(view_, &FlowView::removalAsked, this, &FlowPane::removeLinks);
    connect(view_, &FlowView::boxRemovalAsked, this, &FlowPane::removeChosen);
    connect(view_, &FlowView::opened, this, [this](ModelObject* object) { openBox(*object); });
    connect(view_, &FlowView::upAsked, this, &FlowPane::up);
    scheduleRefresh();
}

QToolButton* FlowPane::addButton(const QString& iconName, const QString& text, const QString& tip,
                                 const std::function<void()>& run) {
    auto* const button = new QToolButton;
    button->setIcon(icon(iconName));
    button->setText(text);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, run);
    return button;
}

QWidget* FlowPane::makeHead() {
    auto* const head = new QWidget;
    auto* const row = new QHBoxLayout(head);
    constexpr int kSide = 8;
    row->setContentsMargins(kSide, 2, kSide, 2);
    hint_->setForegroundRole(QPalette::PlaceholderText);
    path_->setTextFormat(Qt::RichText);
    path_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    up_ = addButton({}, "↑", "Show the flow around (Backspace)", [this] { up(); });
    row->addWidget(up_);
    row->addWidget(path_, 1);
    row->addWidget(hint_);
    row->addWidget(addButton({}, "−", "Smaller (−)", [this] { view_->zoom(1 / kZoomStep); }));
    row->addWidget(addButton({}, "+", "Larger (+)", [this] { view_->zoom(kZoomStep); }));
    row->addWidget(addButton({}, "Fit", "Show all (0)", [this] { view_->fit(); }));
    return head;
}

/// The plan goes: nothing of it is kept.
void FlowPane::drop() {
    owner_ = {};
    way_.reset();
    isNewFlow_ = true;
    view_->show({}, true);
}

void FlowPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!refreshing_.isActive()) {
        refresh();
    }
}

void FlowPane::scheduleRefresh() {
    refreshing_.start(0);
}

void FlowPane::refresh() {
    if (!isVisible()) {
        return; // showEvent makes up for it
    }
    if (!owner_ || !owner_->standsInPlan()) {
        owner_ = &BomDesk::usualRoot(session_.plan());
        way_.reset();
        isNewFlow_ = true;
    }
    auto& owner = static_cast<FlowObject&>(*owner_.Get());
    if (!way_) {
        way_ = wayToEnd(owner, walkedBy_(owner));
    }
    FlowGraph graph = readFlow(owner, *way_, choice_.present(), kDrawn);
    const std::size_t shown = graph.boxes.size();
    const std::size_t total = graph.total;
    const QLocale locale;
    hint_->setText(shown < total ? QString("%1 of %2 steps, those around the chosen one")
                                       .arg(locale.toString(qulonglong(shown)), locale.toString(qulonglong(total)))
                                 : QString());
    view_->show(std::move(graph), std::exchange(isNewFlow_, false));
    tellHead();
    if (total == 0) {
        showNote("No steps in \"" + QString::fromStdString(owner_->name()) +
                 "\" yet. Add Step (Ctrl+Enter) puts one behind the other; "
                 "drag from box to box for further links.");
        return;
    }
    stack_->setCurrentWidget(view_);
    markChosen();
}

void FlowPane::showNote(const QString& text) {
    note_->setText(text);
    stack_->setCurrentWidget(note_);
}

void FlowPane::tellHead() {
    const auto& owner = static_cast<const FlowObject&>(*owner_.Get());
    path_->setText(pathText(owner));
    up_->setEnabled(flowAbove(owner) != nullptr);
    view_->setAccessibleName("Flow of " + QString::fromStdString(owner.name()));
}

bool FlowPane::isDrawn(const ModelObject& object) const {
    return view_->boxOf(object) != nullptr;
}

void FlowPane::followChoice() {
    ModelObject* const present = choice_.present();
    FlowObject* const wanted = present && !isChoosing_ ? flowOwner(*present) : nullptr;
    if (wanted && wanted != owner_.Get()) {
        open(*wanted);
    } else if (wanted && present != owner_.Get() && !isDrawn(*present)) {
        scheduleRefresh(); // it stands in the part of the flow that isn't drawn, or has just come
    } else {
        markChosen();
    }
}

void FlowPane::open(FlowObject& owner) {
    owner_ = &owner;
    way_.reset();
    isNewFlow_ = true;
    scheduleRefresh();
}

void FlowPane::markChosen() {
    view_->mark([this](const ModelObject& object) {
        const auto* const resource = object.sort() == Sort::Resource ? static_cast<const Resource*>(&object) : nullptr;
        return choice_.contains(&object) || (resource && choice_.contains(resource->behaviour()));
    });
}

void FlowPane::choose(const std::vector<ModelObject*>& objects) {
    isChoosing_ = true;
    choice_.choose(objects);
    isChoosing_ = false;
}

void FlowPane::link(ModelObject& from, ModelObject& to) {
    auto& start = linkStart(static_cast<FlowObject&>(from));
    auto& end = static_cast<FlowObject&>(to);
    if (view_->arrowBetween(start, end)) {
        return; // a second one would say nothing new
    }
    session_.perform([&](PlanEditor& editor) { editor.addLink(start, end); });
}

void FlowPane::removeLinks(const std::vector<FlowArrow>& arrows) {
    session_.perform([&](PlanEditor& editor) {
        const auto removeAll = [&] {
            for (const FlowArrow& arrow : arrows) {
                editor.removeLink(static_cast<FlowObject&>(*arrow.start.Get()),
                                  static_cast<FlowObject&>(*arrow.end.Get()));
            }
        };
        arrows.size() == 1 ? removeAll() : editor.group("Remove Links", removeAll);
    });
}

bool FlowPane::hasKeyboard() const {
    return view_->hasFocus();
}

void FlowPane::removeChosen() {
    std::vector<PlanDrag::Entry> rows;
    for (const auto& object : choice_.objects()) {
        if (isDrawn(*object.Get())) {
            rows.push_back({PlanRow{object.Get()}});
        }
    }
    if (!rows.empty()) {
        removeRows(session_, rows);
    }
}

void FlowPane::setMenu(QMenu* menu) {
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view_, &QWidget::customContextMenuRequested, menu,
            [this, menu](QPoint place) { menu->popup(view_->mapToGlobal(place)); });
}

void FlowPane::openBox(ModelObject& object) {
    if (flowOwner(object) == &object) {
        open(static_cast<FlowObject&>(object));
    }
}

void FlowPane::up() {
    const QORVar<ModelObject> from = owner_;
    FlowObject* const above = from ? flowAbove(static_cast<FlowObject&>(*from.Get())) : nullptr;
    if (above) {
        choose({from.Get()});
        open(*above);
    }
}

} // namespace planner::desktop
