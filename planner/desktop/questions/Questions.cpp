#include "planner/desktop/questions/Questions.h"

#include "planner/desktop/bom/BomDesk.h"
#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/questions/AnswerText.h"
#include "planner/desktop/questions/Findings.h"

#include "planner/bill/Bill.h"
#include "planner/bill/MakeGenerator.h"
#include "planner/file/PlanReader.h"
#include "planner/questions/diff/DiffFormats.h"
#include "planner/questions/explain/ExplainFormats.h"
#include "planner/text/StyledText.h"

#include "QORPlatform/toolkit/QORProgress.h"

#include <QAction>
#include <QFileInfo>

namespace planner::desktop {

namespace {

/// Rows and findings that an answer shows at most: more than a person reads.
constexpr std::size_t kMostShown = 1000;

QString heading(const QString& rich) {
    return "<p><b>" + rich + "</b></p>";
}

QString moreThanShown(std::size_t number) {
    return number > kMostShown ? "<p>… and " + QString::number(number - kMostShown) + " more</p>" : QString();
}

QString rowsOf(const Bill& bill) {
    QString rows = "<pre>";
    for (std::size_t i = 0; i < std::min(bill.size(), kMostShown); ++i) {
        rows += QString(qsizetype{2} * bill[i].level, ' ') + linkTo(*bill[i].object) + '\n';
    }
    return rows + "</pre>" + moreThanShown(bill.size());
}

QString findingsText(const std::vector<Finding>& findings) {
    QString text;
    for (std::size_t i = 0; i < std::min(findings.size(), kMostShown); ++i) {
        const Finding& finding = findings[i];
        if (i == 0 || findings[i - 1].code != finding.code) {
            text += heading(plainText(std::string(ruleOf(finding.code).heading)));
        }
        text += "<p style=\"margin-left:16px\">" + linkTo(*finding.object) + ": " + plainText(finding.message) +
                ".<br>→ " + plainText(finding.advice) + "</p>";
    }
    return text + moreThanShown(findings.size());
}

/// A bill with the generator that has computed it.
struct Computed {
    explicit Computed(ModelObject& root) : generator(makeGenerator(QORBaseUnknown_var(&root))) {
        const DOM_Document document = generator->GetBom(0);
        bill = readBill(document, generator->GetPreviewObjects());
    }

    std::unique_ptr<VXMBomGenerator> generator;
    Bill bill;
};

} // namespace

Questions::Questions(PlanSession& session, Choice& choice, BomDesk& desk, Findings& findings, QObject* parent)
    : QObject(parent), why(make("Wh&y?", "why", QKeySequence("F1"), &Questions::answerWhy)),
      billAtStep(make("Bill at This St&ep", "bill", QKeySequence("F6"), &Questions::answerBillAtStep)),
      check(make("Chec&k Plan", "check", QKeySequence("F7"), &Questions::answerCheck)),
      compare(make("Compare with Save&d File", "compare", QKeySequence("F8"), &Questions::answerCompare)),
      session_(session), choice_(choice), desk_(desk), findings_(findings) {
    connect(&choice_, &Choice::changed, this, &Questions::enable);
    connect(&session_, &PlanSession::fileStateChanged, this, &Questions::enable);
    enable();
}

/// A person may cancel the computation; the last answer stays then.
QAction* Questions::make(const QString& text, const QString& iconName, const QKeySequence& keys,
                         QString (Questions::*answer)()) {
    auto* const action = new QAction(icon(iconName), text, this);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, [this, answer] {
        try {
            Q_EMIT answered((this->*answer)());
        } catch (const QORCancelled&) {
            return;
        } catch (const std::exception& error) {
            Q_EMIT answered(plainText(error.what()));
        }
    });
    return action;
}

void Questions::enable() {
    const ModelObject* const present = choice_.present();
    why->setEnabled(present && present->sort() == Sort::Item);
    billAtStep->setEnabled(present && BomDesk::isRoot(*present) && present != session_.plan().process());
    compare->setEnabled(!session_.path().isEmpty());
}

ModelObject& Questions::root() const {
    ModelObject* const shown = desk_.currentRoot();
    return shown && shown->standsInPlan() ? *shown : BomDesk::usualRoot(session_.plan());
}

QString Questions::answerWhy() {
    const RecordedBill bill(root());
    const auto explanations = explain(session_.plan(), bill, {choice_.present()});
    return heading("Why in the bill of " + linkTo(root()) + ", or why not") +
           answerText(session_.plan(), [&](TextOutput& output) { writeExplanationsText(bill, explanations, output); });
}

QString Questions::answerBillAtStep() {
    const FastenerSettings settings;
    const QORBaseUnknown_var step(choice_.present());
    const auto generator = makeGenerator(QORBaseUnknown_var(&root()));
    generator->SetEndOfFlow(step);
    const DOM_Document document = generator->GetBom(0);
    const Bill bill = readBill(document, generator->GetPreviewObjects());
    if (!generator->CheckUse(step)) {
        return linkTo(*choice_.present()) + " is no step of the flow of " + linkTo(root()) + '.';
    }
    return heading("Bill when " + linkTo(*choice_.present()) + " is finished") +
           (bill.empty() ? QString("<p>Nothing is there yet.</p>") : rowsOf(bill));
}

QString Questions::answerCheck() {
    findings_.run(root());
    const auto& found = findings_.all();
    const QString number = found.empty() ? QString("nothing found") : QString("findings: %1").arg(found.size());
    return heading(linkTo(root()) + ", " + number) + findingsText(found);
}

QString Questions::answerCompare() {
    const QString name = QFileInfo(session_.path()).fileName().toHtmlEscaped();
    const ReadResult saved = readPlan(session_.path().toStdString());
    if (!saved.plan) {
        return name + " can't be read as it is now: " + plainText(saved.errors.front());
    }
    ModelObject& now = root();
    ModelObject* const then = &now == session_.plan().process() ? saved.plan->process() : saved.plan->find(now.id());
    if (!then || !BomDesk::isRoot(*then)) {
        return linkTo(now) + " has no bill in " + name + '.';
    }
    const Computed before(*then);
    const Computed after(now);
    const auto changes = diffBills({*saved.plan, *then, *before.generator, before.bill},
                                   {session_.plan(), now, *after.generator, after.bill});
    return heading("Bill of " + linkTo(now) + ", compared with " + name) +
           answerText(session_.plan(), [&](TextOutput& output) { writeDiffText(changes, now.name(), output); });
}

} // namespace planner::desktop
