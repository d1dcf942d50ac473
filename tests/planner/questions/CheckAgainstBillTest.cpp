// Judgements of the check on random plans, against the bill, the passes run one by one, and slow ways to tell.

#include "PlanDrawing.h"
#include "RandomDrawing.h"

#include "planner/bill/BillRemarks.h"
#include "planner/model/Contents.h"
#include "planner/questions/check/Check.h"
#include "planner/questions/check/ReachedFlow.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace planner;

namespace {

using Objects = std::set<const ModelObject*>;

/// A plan with its bill, its findings, and what slow ways tell of it.
class Judged {
public:
    explicit Judged(const std::string& drawing)
        : plan(plandrawing::draw(drawing)), generator(VXMMakeBomGenerator(plan->process())),
          document(generator->GetBom(0)), bill(readBill(document, generator->GetPreviewObjects())),
          flow(*generator, *plan->process()), findings(checkPlan(*plan, *plan->process())) {}

    /// Objects with a finding of a code, or what comes first among what has a part in it.
    Objects found(CheckCode code) const {
        Objects objects;
        for (const Finding& finding : findings) {
            finding.code == code ? void(objects.insert(finding.object)) : void();
        }
        return objects;
    }

    bool lists(std::size_t step, Relation relation, const ModelObject& item) const {
        const ObjectList* const list = listOfStep(*flow.steps()[step].object, relation);
        return list && std::find(list->begin(), list->end(), &item) != list->end();
    }
    bool listsCounting(std::size_t step, Relation relation, const ModelObject& item) const {
        return flow.counts(flow.steps()[step], relation) && lists(step, relation, item);
    }

    bool leads(std::size_t from, std::size_t to) const {
        const auto& before = flow.steps()[to].before;
        return std::any_of(before.begin(), before.end(), [&](auto each) { return each == from || leads(from, each); });
    }

    bool isNamedAgain(const ModelObject& item) const {
        for (std::size_t removal = 0; removal < flow.steps().size(); ++removal) {
            for (std::size_t later = 0; later < flow.steps().size(); ++later) {
                const bool names =
                    listsCounting(later, Relation::FirstAssigned, item) ||
                    listsCounting(later, Relation::Assigned, item) || listsCounting(later, Relation::Outputs, item) ||
                    (dynamic_cast<const Fastener*>(&item) && listsCounting(later, Relation::Items, item));
                if (listsCounting(removal, Relation::Removed, item) && names && leads(removal, later)) {
                    return true;
                }
            }
        }
        return false;
    }

    bool isRemoved(const ModelObject& item) const {
        for (std::size_t step = 0; step < flow.steps().size(); ++step) {
            if (listsCounting(step, Relation::Removed, item)) {
                return true;
            }
        }
        return false;
    }

    bool stands(const ModelObject& item) const {
        return std::any_of(bill.begin(), bill.end(),
                           [&](const BillElement& each) { return each.level == 1 && each.object == &item; });
    }

    static bool holds(const ModelObject& whole, const ModelObject& part, int depth = 0) {
        if (&whole == &part) {
            return true;
        }
        for (const Relation relation : {Relation::Children, Relation::Holds}) {
            const ObjectList* const list = depth < 9 ? listOf(whole, relation) : nullptr;
            for (const ModelObject* each : list ? list->entries() : std::vector<ModelObject*>()) {
                if (holds(*each, part, depth + 1)) {
                    return true;
                }
            }
        }
        return false;
    }

    bool handles(std::size_t step, Relation relation, const ModelObject& part) const {
        return std::any_of(plan->items.begin(), plan->items.end(),
                           [&](const Item* whole) { return holds(*whole, part) && lists(step, relation, *whole); });
    }

    /// Whether some way to the step brings the part and doesn't take it out behind that.
    bool isThere(std::size_t step, const ModelObject& part) const {
        if (handles(step, Relation::FirstAssigned, part) || handles(step, Relation::Outputs, part)) {
            return true;
        }
        const auto& before = flow.steps()[step].before;
        return std::any_of(before.begin(), before.end(), [&](std::uint32_t each) {
            return !handles(each, Relation::Removed, part) && isThere(each, part);
        });
    }

    bool isSetTooEarly(const Fastener& fastener) const {
        for (std::size_t step = 0; step < flow.steps().size(); ++step) {
            const bool sets = lists(step, Relation::FirstAssigned, fastener) ||
                              lists(step, Relation::Assigned, fastener) || lists(step, Relation::Items, fastener) ||
                              lists(step, Relation::Outputs, fastener);
            for (const ModelObject* part : fastener.joins) {
                if (sets && !isThere(step, *part)) {
                    return true;
                }
            }
        }
        return false;
    }

    std::unique_ptr<Plan> plan;
    std::unique_ptr<VXMBomGenerator> generator;
    DOM_Document document;
    Bill bill;
    ReachedFlow flow;
    std::vector<Finding> findings;
};

/// How many removals, and assignments, of each item stand at the top of a tree.
std::map<const ModelObject*, std::pair<int, int>> countTop(VXMFabMBOMNode& top) {
    std::map<const ModelObject*, std::pair<int, int>> counts;
    for (int i = 1; i <= top.GetNumberOfSuccessors(); ++i) {
        VXMFabMBOMNode& node = *top.GetSuccessor(i);
        auto& [removals, assignments] = counts[ModelObject::behind(node.GetProduct())];
        removals += node.GetAssignmentType() == VXMFabMBOMNode::AT_Remove;
        assignments += node.GetAssignmentType() == VXMFabMBOMNode::AT_FirstAssign ||
                       node.GetAssignmentType() == VXMFabMBOMNode::AT_Process;
    }
    return counts;
}

TEST(CheckAgainstBill, SaysOfRemovalsWhatThePassesMakeOfThem) {
    int told = 0;
    for (unsigned seed = 0; seed < 400; ++seed) {
        const std::string drawing = plandrawing::RandomDrawing(seed).make();
        const Judged judged(drawing);
        const Objects stays = judged.found(CheckCode::StaysThoughRemoved);
        const Objects again = judged.found(CheckCode::RemovedAndNamedAgain);
        for (const Item* item : judged.plan->items) {
            const bool isRemoved = judged.isRemoved(*item);
            EXPECT_EQ(again.contains(item), isRemoved && judged.isNamedAgain(*item)) << drawing << ": " << item->id();
            EXPECT_EQ(stays.contains(item), isRemoved && !again.contains(item) && judged.stands(*item))
                << drawing << ": " << item->id();
        }
        told += static_cast<int>(stays.size() + again.size());
    }
    EXPECT_GT(told, 200) << "plans without removals that matter";
}

TEST(CheckAgainstBill, TellsEachRemovalThatFindsNoPartner) {
    int told = 0;
    for (unsigned seed = 0; seed < 400; ++seed) {
        const std::string drawing = plandrawing::RandomDrawing(seed).make();
        const Judged judged(drawing);
        if (judged.flow.hasLoop() || judged.flow.empty()) {
            continue;
        }
        const auto bom = VXMMakeBomGenerator(judged.plan->process());
        bom->MainCheckFlow();
        auto* const top = new VXMFabMBOMNode(QORBaseUnknown_var(), 0, 0, VXMFabMBOMNode::AT_Top, 1);
        bom->AddMBOMNodeToList(top);
        bom->SetTopNode(top);
        bom->CreateMBOM(bom->GetLastNodeInFlow(bom->CheckUse(QORBaseUnknown_var(judged.plan->process()))), top, 1);
        const auto before = countTop(*top);
        bom->CleanMBOM_RemoveAssignments();
        const auto after = countTop(*top);
        std::map<const ModelObject*, int> findings;
        for (const Finding& finding : judged.findings) {
            findings[finding.code == CheckCode::RemovalWithoutAssignment ? finding.related[0] : nullptr] += 1;
        }
        const auto& steps = judged.flow.steps();
        const bool isSingle =
            std::all_of(steps.begin(), steps.end(), [](const ReachedStep& step) { return step.paths < 2; });
        for (const auto& [item, counts] : before) {
            const auto left = after.find(item);
            const int unpaired = left == after.end() ? 0 : left->second.first;
            const int found = findings[item];
            EXPECT_LE(found, unpaired) << drawing << ": " << item->id();
            EXPECT_TRUE(counts.second > 0 || counts.first == 0 || found > 0) << drawing << ": " << item->id();
            EXPECT_TRUE(!isSingle || (found > 0) == (unpaired > 0)) << drawing << ": " << item->id();
            told += found;
        }
    }
    EXPECT_GT(told, 100);
}

TEST(CheckAgainstBill, TellsEachFastenerThatIsSetTooEarly) {
    int told = 0;
    for (unsigned seed = 0; seed < 400; ++seed) {
        const std::string drawing = plandrawing::RandomDrawing(seed).make();
        const Judged judged(drawing);
        const Objects absent = judged.found(CheckCode::JoinedPartAbsent);
        for (const Item* item : judged.plan->items) {
            const auto* const fastener = dynamic_cast<const Fastener*>(item);
            EXPECT_EQ(absent.contains(item), fastener && judged.isSetTooEarly(*fastener)) << drawing;
        }
        told += static_cast<int>(absent.size());
    }
    EXPECT_GT(told, 50);
}

TEST(CheckAgainstBill, WhatItSaysAddsNothingCanGo) {
    int cleared = 0;
    for (unsigned seed = 0; seed < 400; ++seed) {
        const std::string drawing = plandrawing::RandomDrawing(seed).make();
        const Judged judged(drawing);
        const Objects shut = judged.found(CheckCode::LeftOutInStation);
        const Objects lost = judged.found(CheckCode::StepOffFlow);
        walkPlan(*judged.plan, [&](FlowObject& object, const ModelObject* container) {
            auto& step = static_cast<Activity&>(object);
            const bool isInside = container && !judged.flow.isOnWay(step) && !judged.flow.isOnWay(*container);
            const bool isLost = lost.contains(&step) || isInside;
            EXPECT_EQ(isLost, !judged.flow.isOnWay(step)) << drawing << ": " << step.id();
            if (!isLost && !shut.contains(&step)) {
                return;
            }
            const bool isLoading = !isLost && step.kind() == ActivityKind::Loading;
            for (ObjectList* list : {&step.assigned, &step.removed, &step.items, &step.outputs}) {
                list->reset();
            }
            isLoading ? void() : step.firstAssigned.reset();
            ++cleared;
        });
        const auto again = VXMMakeBomGenerator(judged.plan->process());
        const DOM_Document document = again->GetBom(0);
        const Bill bill = readBill(document, again->GetPreviewObjects());
        ASSERT_EQ(bill.size(), judged.bill.size()) << drawing;
        for (std::size_t i = 0; i < bill.size(); ++i) {
            EXPECT_TRUE(bill[i].object == judged.bill[i].object && bill[i].level == judged.bill[i].level) << drawing;
        }
    }
    EXPECT_GT(cleared, 200);
}

} // namespace
