// The nodes by themselves: what a flow node reads of the model, what an MBOM node keeps.

#include "library/Bills.h"

#include "VXMBomInfrastructure/nodes/VXMFabProcessFlowNode.h"
#include "VXMBomInfrastructure/nodes/VXMFabResourceFlowNode.h"

using namespace testmodel;

namespace {

constexpr int kAllTypes = 4095;

VXMFabProcessFlowNode processNode(Thing& activity, int mode = kAllTypes, unsigned char assignedOnly = 1) {
    return {QORISPPAbstractActivity_var(handle(activity)), 2, 7, mode, assignedOnly};
}

/// "FAP: … PP: … RP: … CP: … F: …", without what is empty.
std::string listsOf(const VXMFabFlowNode& node) {
    using Count = int (VXMFabFlowNode::*)() const;
    using Entry = QORBaseUnknown_var (VXMFabFlowNode::*)(int) const;
    const std::tuple<const char*, Count, Entry> lists[] = {
        {"FAP:", &VXMFabFlowNode::GetNumberOfFAP, &VXMFabFlowNode::GetFAP},
        {"PP:", &VXMFabFlowNode::GetNumberOfPP, &VXMFabFlowNode::GetPP},
        {"RP:", &VXMFabFlowNode::GetNumberOfRP, &VXMFabFlowNode::GetRP},
        {"CP:", &VXMFabFlowNode::GetNumberOfCP, &VXMFabFlowNode::GetCP},
        {"F:", &VXMFabFlowNode::GetNumberOfFasteners, &VXMFabFlowNode::GetFasteners}};
    std::string text;
    for (const auto& [label, count, entry] : lists) {
        QORListValQORBaseUnknown_var entries;
        for (int position = 1; position <= (node.*count)(); ++position) {
            entries.Append((node.*entry)(position));
        }
        if (entries.Size() > 0) {
            text += (text.empty() ? "" : " ") + std::string(label) + " " + listText(entries);
        }
    }
    return text;
}

TEST(FlowNode, WithoutAModelObjectStaysEmpty) {
    const VXMFabProcessFlowNode process(nullptr, 2, 7, kAllTypes, 1);
    const VXMFabResourceFlowNode resource(nullptr, 2, 7, kAllTypes, 1);
    for (const VXMFabFlowNode* node : std::initializer_list<const VXMFabFlowNode*>{&process, &resource}) {
        EXPECT_EQ(node->GetIDString(), "-1");
        EXPECT_EQ(node->GetNumber(), -1);
        EXPECT_EQ(node->GetUName(), "");
        EXPECT_EQ(node->GetNodeType(), 0);
        EXPECT_EQ(node->ParentIsStation(), 0);
        EXPECT_EQ(listsOf(*node), "");
    }
}

TEST(FlowNode, ReadsNameAndIdentity) {
    World world;
    drawPlan(world, "S@station { A@loading }");
    const VXMFabProcessFlowNode node = processNode(world["A"]);
    EXPECT_EQ(node.GetName(), "A");
    EXPECT_EQ(node.GetIDString(), "3");
    EXPECT_EQ(node.GetNodeType(), VXMFabFlowNode::NT_LOADING);
    EXPECT_EQ(node.ParentIsStation(), 1);
    EXPECT_EQ(node.GetActivity(), handle(world["A"]));
}

TEST(FlowNode, HandlesOutliveTheNode) {
    World world;
    drawPlan(world, "A: +P");
    std::unique_ptr<VXMFabFlowNode> node(new VXMFabProcessFlowNode(processNode(world["A"])));
    const QORBaseUnknown_var taken = node->GetFAP(1);
    node.reset();
    EXPECT_EQ(taken->GetReferenceCount(), 2);
}

struct ListsRow {
    const char* name;
    const char* drawing;
    const char* lists;
    Change change = nullptr;
    int mode = kAllTypes;
    unsigned char assignedOnly = 1;
};

const ListsRow kProcessLists[] = {
    {"ByRelation", "A: +P =Q -X >O *w", "FAP: P PP: Q RP: X CP: O F: w"},
    {"InTwoRelations", "A: +P =P", "FAP: P PP: P"},
    {"TwoRecordsOfOneProduct", "A: >O >O", "CP: O O"},
    {"SameFastenerTwice", "A: *w *w", "F: w w"},
    {"NullLists", "A: +P =Q -X *w", "",
     [](World& world) {
         for (auto& [relation, items] : world["A"].items) {
             items.reset();
         }
     }},
    {"NoItemManagement", "A: +P >O", "CP: O", lacks("A", kItemMgt)},
    {"NoFlowManagement", "A: +P >O", "FAP: P", lacks("A", kFlow)},
    {"RecordsThatAreNullOrForeign", "A: >O", "CP: O",
     [](World& world) {
         Thing& step = world["A"];
         World& all = world;
         all.putOut(step, nullptr);
         step.outputs.insert(step.outputs.begin(), {nullptr, &world["O"]});
     }},
    {"FastenerThatIsNoItem", "A: *w *v", "F: v", answers("w", kFastener)},
    {"ItemThatIsNoFastener", "A: *w", "", answers("w", kItem)},
    {"NullItem", "A: *w", "FAP: null F: w",
     [](World& world) {
         world["A"].items[2]->push_back(nullptr);
         world["A"].items[0]->push_back(nullptr);
     }},
    {"BitClear", "A: *w *s{Screw}", "F: s", nullptr, kAllTypes - 64},
    {"OneBitSet", "A: *w *s{Stud}", "F: s", nullptr, 2048},
    {"NoBitSet", "A: +P *w", "FAP: P", nullptr, 0},
    {"UnassignedLeftOut", "A: *w? *v", "F: v"},
    {"UnassignedTakenIn", "A: *w? *v", "F: w v", nullptr, kAllTypes, 0},
    {"OnlyOneMeansAssignedOnly", "A: *w?", "F: w", nullptr, kAllTypes, 2},
    {"UnassignedAndBitClear", "A: *w?", "", nullptr, kAllTypes - 64, 0},
};

TEST(FlowNode, TakesTheListsOfAnActivity) {
    for (const ListsRow& row : kProcessLists) {
        World world;
        drawPlan(world, row.drawing);
        apply(row.change, world);
        EXPECT_EQ(listsOf(processNode(world["A"], row.mode, row.assignedOnly)), row.lists) << row.name;
    }
}

const ListsRow kResourceLists[] = {
    {"AllThatIsAssigned", "C@resource: +P *w >O", "FAP: P w CP: O F: w"},
    {"BitClear", "C@resource: *w", "FAP: w", nullptr, kAllTypes - 64},
    {"NoBitSet", "C@resource: *w", "FAP: w", nullptr, 0},
    {"OutputThatIsNoItem", "C@resource: >O >M", "CP: M", answers("O", kProduct)},
    {"NullLists", "C@resource", ""},
    {"NoBehaviour", "C@resource: +P", "", noBehaviour("C")},
    {"StatusIsNotLookedAt", "C@resource: +P", "FAP: P", failingBehaviour("C")},
};

TEST(FlowNode, TakesTheListsOfABehaviour) {
    for (const ListsRow& row : kResourceLists) {
        World world;
        VXMIResourceBehaviorManager_var manager(handle(drawResource(world, row.drawing)));
        apply(row.change, world);
        VXMFabResourceFlowNode node(manager, 2, 7, row.mode, row.assignedOnly);
        EXPECT_EQ(listsOf(node), row.lists) << row.name;
        EXPECT_EQ(node.GetName(), "C");
        EXPECT_EQ(node.IsAResourceFlowNode(), 1);
        EXPECT_EQ(node.ParentIsStation(), 0);
    }
}

TEST(FlowNode, AResourceThatIsNoProductHasNoName) {
    World world;
    Thing& resource = drawResource(world, "C@resource: +P");
    resource.answers &= ~unsigned(kProduct);
    resource.modelTypes["BIWActivityGrouping"] = 1;
    const VXMFabResourceFlowNode node(VXMIResourceBehaviorManager_var(handle(resource)), 0, 1, 0, 0);
    EXPECT_EQ(node.GetUName(), "");
    EXPECT_EQ(node.GetID(), 1);
    EXPECT_EQ(node.GetNodeType(), VXMFabFlowNode::NT_GROUPING);
    EXPECT_EQ(listsOf(node), "FAP: P");
}

TEST(FlowNode, AsksTheModelInOrderAndNoMoreThanNeeded) {
    World world;
    drawPlan(world, "A: +P *w");
    Thing& resource = drawResource(world, "C@resource: *w");
    const auto callsOf = [&](auto make) {
        world.calls.names.clear();
        world.calls.keepNames = true;
        make();
        world.calls.keepNames = false;
        std::string text;
        for (const std::string& name : world.calls.names) {
            text += name.starts_with("Get") && name != "GetName" && name != "GetProductName" ? name + " " : "";
        }
        return text;
    };
    const VXMIResourceBehaviorManager_var manager(handle(resource));
    EXPECT_EQ(callsOf([&] { processNode(world["A"]); }),
              "GetParent GetParent GetItems 2 GetItems 1 GetItems 4 GetItems 0 GetProcessType GetProductOutputs ");
    EXPECT_EQ(callsOf([&] { processNode(world["A"], 0); }),
              "GetParent GetParent GetItems 2 GetItems 1 GetItems 4 GetProductOutputs ");
    EXPECT_EQ(callsOf([&] { VXMFabResourceFlowNode(manager, 0, 1, 1, 1); }),
              "GetBehavior GetAssignedItems GetAssignedItems GetProcessType GetOutputItems ");
    EXPECT_EQ(callsOf([&] { VXMFabResourceFlowNode(manager, 0, 1, 0, 1); }),
              "GetBehavior GetAssignedItems GetOutputItems ");
}

TEST(FlowNode, ParentsInACircleEndTheClimb) {
    World world;
    drawPlan(world, "A { B { C } }");
    world["R"].parent = &world["B"];
    EXPECT_EQ(processNode(world["C"]).ParentIsStation(), 0);
    world["A"].modelTypes["BIWActivityStation"] = 1;
    EXPECT_EQ(processNode(world["C"]).ParentIsStation(), 1);
}

VXMFabMBOMNode nodeOf(const QORBaseUnknown_var& product, int number = 1) {
    return {product, 1, number, VXMFabMBOMNode::AT_FirstAssign, 1};
}

TEST(MBOMNode, TakesItsNameFromTheFirstInterfaceThatAnswers) {
    World world;
    const std::pair<unsigned, const char*> rows[] = {{kAssembly | kProduct | kItem, "as assembly"},
                                                     {kProduct | kItem, "X"},
                                                     {kItem | kFastener, "X"},
                                                     {kAssembly, "as assembly"},
                                                     {kSpec, "not defined"}};
    Thing& thing = world.thing("X", 0);
    thing.assemblyName = "as assembly";
    for (const auto& [answers, name] : rows) {
        thing.answers = answers;
        EXPECT_EQ(nodeOf(handle(thing)).GetName(), name);
    }
}

TEST(MBOMNode, HandlesThroughAnyInterfaceAreOneProduct) {
    World world;
    Thing& thing = world.thing("X", kItem | kProduct);
    const VXMFabMBOMNode asItem = nodeOf(QORISPPItem_var(handle(thing)));
    const VXMFabMBOMNode asProduct = nodeOf(QORIProduct_var(handle(thing)));
    EXPECT_EQ(asItem.GetIDString(), asProduct.GetIDString());
}

TEST(MBOMNode, ListAndPredecessorChangeIndependently) {
    VXMFabMBOMNode parent = nodeOf(nullptr, 0);
    VXMFabMBOMNode child = nodeOf(nullptr, 1);
    parent.AddSuccessor(&child);
    parent.AddSuccessor(nullptr);
    EXPECT_EQ(treeText(parent), "1");
    EXPECT_EQ(child.GetPredecessor(), nullptr);
    child.SetPredecessor(&parent);
    parent.RemoveSuccessor(static_cast<VXMFabMBOMNode*>(nullptr));
    parent.RemoveSuccessor(&child);
    EXPECT_EQ(treeText(parent), "");
    EXPECT_EQ(child.GetPredecessor(), &parent);
    child.RemovePredecessor();
    EXPECT_EQ(child.GetPredecessor(), nullptr);
}

TEST(MBOMNode, MovedSuccessorsStandInBothLists) {
    VXMProcessBomGenerator generator(nullptr);
    VXMFabMBOMNode source = nodeOf(nullptr, 1);
    VXMFabMBOMNode target = nodeOf(nullptr, 2);
    VXMFabMBOMNode a = nodeOf(nullptr, 3);
    VXMFabMBOMNode b = nodeOf(nullptr, 4);
    source.AddSuccessor(&a);
    source.AddSuccessor(&b);
    target.AddSuccessor(&b);
    a.SetPredecessor(&source);
    generator.MoveSuccessors(&source, &target);
    generator.MoveSuccessors(nullptr, &target);
    generator.MoveSuccessors(&source, nullptr);
    EXPECT_EQ(a.GetPredecessor(), &source);
    target.RemoveSuccessor(&b);
    source.RemoveSuccessor(&a);
    EXPECT_EQ(treeText(source), "4");
    EXPECT_EQ(treeText(target), "3 4");
}

TEST(MBOMNode, OperationsWithoutANodeOrParentChangeNothing) {
    VXMProcessBomGenerator generator(nullptr);
    generator.GetBom(0);
    VXMFabMBOMNode* const top = generator.GetTopNode();
    QORHashDico met(10);
    for (VXMFabMBOMNode* node : {static_cast<VXMFabMBOMNode*>(nullptr), top}) {
        EXPECT_EQ(generator.RemoveNodeFromMBOMFlow(node), 0);
        EXPECT_EQ(generator.RemoveNodeAndChildrenFromMBOMFlow(node), 0);
        EXPECT_EQ(generator.CheckPreviousAssignments(node), 0);
        EXPECT_EQ(generator.CheckPreviousFPAssignments(node), 0);
        EXPECT_EQ(generator.RemoveParallelRemoveAssignment(node), nullptr);
        EXPECT_EQ(generator.RemoveProcessAssignment(node), nullptr);
        generator.CleanMBOM_1(node, met);
        generator.CleanMBOM_2(node);
        generator.CleanMBOM_3(node, met);
    }
    EXPECT_EQ(generator.UseProducts(nullptr, VXMFabMBOMNode::AT_FirstAssign), 0);
    EXPECT_EQ(generator.RemoveFromListAndDico(nullptr), 0);
    EXPECT_EQ(generator.RemoveNodeAndChildrenFromListAndDico(nullptr), 0);
    EXPECT_EQ(generator.CreateProductChildren(nullptr, 1, 5, {}), 5);
    EXPECT_EQ(generator.CreateOldMAChildren(nullptr, 1, 5), 5);
    generator.AddMBOMNodeToList(nullptr);
    VXMFabMBOMNode unknown(nullptr, 0, 0, VXMFabMBOMNode::AssignmentType(6), 1);
    generator.AddMBOMNodeToList(&unknown); // isn't taken over, or the generator would delete it
    EXPECT_EQ(generator.GetTopNode(), top);
}

} // namespace
