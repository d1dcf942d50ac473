// What the navigator sees of a bill: tree objects over the document, and the extension of their nodes.

#include "planner/edit/WindowDesk.h"
#include "support/BomText.h"

#include "framework/QORDictionary.h"
#include "framework/QORMetaClass.h"
#include "model/QORISPPControlFlow.h"
#include "navigation/QORIGraphNode.h"
#include "navigation/QORINavigElement.h"
#include "navigation/QORINavigModify.h"
#include "navigation/QORINavigateObject.h"
#include "navigation/QORINavigateObjectModify.h"
#include "navigation/QORINavigateObjectPPR.h"
#include "navigation/VXMBomNavObject.h"
#include "navigation/VXMPFNavigModifyMBOMObject.h"
#include "process/VXMProcessBomGenerator.h"
#include "visualization/QORPathElement.h"

#include <gtest/gtest.h>

using editing::Desk;
using editing::kShop;
using editing::Session;
using editing::Window;

namespace {

std::string labelOf(const QORBaseUnknown_var& object) {
    const std::unique_ptr<QORListValQORUnicodeString> labels(QORINavigateObject_var(object)->GetIdentificators());
    EXPECT_EQ(labels->Size(), 1);
    return std::string((*labels)[1]);
}

/// An object and all below it, as "Bom(hinge(pin) door)".
std::string treeOf(const QORBaseUnknown_var& object) {
    std::string text = labelOf(object);
    const std::unique_ptr<QORListValQORBaseUnknown_var> children(QORINavigateObject_var(object)->GetChildren());
    for (int position = 1; position <= children->Size(); ++position) {
        text += (position == 1 ? "(" : " ") + treeOf((*children)[position]);
    }
    return text + (children->Size() > 0 ? ")" : "");
}

QORBaseUnknown_var objectFor(const DOM_Document& document) {
    DOM_Element element = document.getDocumentElement();
    return QORBaseUnknown_var::Adopt(new VXMBomNavObject(element));
}

TEST(TreeObject, StandsForTheBillOfAnActivity) {
    Session session(kShop);
    const auto object = QORBaseUnknown_var::Adopt(new VXMBomNavObject(QORISPPActivity_var(session.plan().process())));
    EXPECT_EQ(treeOf(object), "Bom(hinge(pin) door)");
    session.editor().removeItem(session.item("hinge"));
    EXPECT_EQ(treeOf(object), "Bom(hinge(pin) door)") << "the bill as it was";
}

TEST(TreeObject, ReadsItsOwnDocumentWhateverTheGeneratorDoes) {
    Session session(kShop);
    QORBaseUnknown_var old;
    QORBaseUnknown_var current;
    {
        VXMProcessBomGenerator generator(QORBaseUnknown_var(session.plan().process()));
        old = objectFor(generator.GetBom(0));
        session.editor().removeItem(session.item("pin"));
        current = objectFor(generator.GetBom(1));
        EXPECT_EQ(treeOf(old), "Bom(hinge(pin) door)");
    }
    EXPECT_EQ(treeOf(old), "Bom(hinge(pin) door)");
    EXPECT_EQ(treeOf(current), "Bom(hinge door)");
}

TEST(TreeObject, GivesNewChildrenAtEachCall) {
    Session session(kShop);
    const auto object =
        QORVar<VXMBomNavObject>::Adopt(new VXMBomNavObject(QORISPPActivity_var(session.plan().process())));
    const std::unique_ptr<QORListValQORBaseUnknown_var> first(object->GetChildren());
    const std::unique_ptr<QORListValQORBaseUnknown_var> second(object->GetChildren());
    ASSERT_EQ(first->Size(), 2);
    ASSERT_EQ(second->Size(), 2);
    EXPECT_FALSE((*first)[1] == (*second)[1]);
    EXPECT_EQ(labelOf((*first)[1]), labelOf((*second)[1]));
    EXPECT_EQ((*first)[1].Impl()->GetReferenceCount(), 1) << "the list alone counts on it";
    const std::unique_ptr<QORListValQORBaseUnknown_var> none(QORINavigateObject_var((*first)[2])->GetChildren());
    ASSERT_NE(none, nullptr);
    EXPECT_EQ(none->Size(), 0);
}

TEST(TreeObject, ShowsNamesAsTheyAre) {
    Session session(kShop);
    session.editor().rename(session.item("door"), "Tür <1> & \"2\"\t");
    session.editor().rename(session.item("hinge"), "");
    const auto object = QORBaseUnknown_var::Adopt(new VXMBomNavObject(QORISPPActivity_var(session.plan().process())));
    EXPECT_EQ(treeOf(object), "Bom((pin) Tür <1> & \"2\"\t)");
}

TEST(TreeObject, OfAnItemNamedLikeTheDocumentKeepsItsName) {
    Session session(kShop);
    session.editor().rename(session.item("door"), "BOM");
    const auto object = QORBaseUnknown_var::Adopt(new VXMBomNavObject(QORISPPActivity_var(session.plan().process())));
    EXPECT_EQ(treeOf(object), "Bom(hinge(pin) BOM)") << "the label goes by the tag";
}

TEST(TreeObject, AnswersAllThreeInterfacesOfTheNavigator) {
    Session session(kShop);
    const auto object = QORBaseUnknown_var::Adopt(new VXMBomNavObject(QORISPPActivity_var(session.plan().process())));
    EXPECT_STREQ(object->IsA(), "VXMBomNavObject");
    EXPECT_EQ(VXMBomNavObject::ClassMeta()->CreateItself(), nullptr);
    EXPECT_EQ(VXMBomNavObject::ClassMeta()->GetKind(), 1);
    const QORINavigateObjectPPR_var ppr(object);
    ASSERT_TRUE(ppr);
    const std::unique_ptr<QORListValQORBaseUnknown_var> children(ppr->GetChildren());
    EXPECT_EQ(children->Size(), 2);
    const std::unique_ptr<QORListValQORUnicodeString> labels(ppr->GetIdentificators());
    EXPECT_EQ(std::string((*labels)[1]), "Bom");
    EXPECT_FALSE(QORINavigModify_var(object)) << "that is the node's";
}

TEST(TreeObject, NamesItselfInACommand) {
    Session session(kShop);
    const auto object = QORBaseUnknown_var::Adopt(new VXMBomNavObject(QORISPPActivity_var(session.plan().process())));
    const QORINavigateObjectModify_var modify(object);
    ASSERT_TRUE(modify);
    for (const int before : {0, 1, 255}) {
        auto flag = static_cast<unsigned char>(before);
        const auto path = QORVar<QORPathElement>::Adopt(modify->DecodeSentCommand(flag));
        EXPECT_EQ(flag, 0);
        EXPECT_EQ(path->GetReferenceCount(), 1);
        EXPECT_EQ(path->GetSize(), 1);
        EXPECT_EQ(path->GetElement(1).Impl(), object.Impl());
    }
}

// The extension of the nodes.

TEST(TreeNode, OfABillHasTheProductIconAfterEachUpdate) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    window.tree();
    QORNavigInstance& root = *window.box().GetRoot(1);
    for (QORNavigInstance* instance : {&root, root.GetChild(1), root.GetChild(1)->GetChild(1)}) {
        QORNavigNode& node = *instance->GetNode();
        EXPECT_STREQ(node.IsA(), "VXMBomNavObject_node");
        EXPECT_EQ(std::string(node.GetIconName()), "I_PPRProduct");
        node.SetIconName("other");
        node.SetNodeOption(7);
        for (int i = 0; i < 3; ++i) {
            instance->Update();
            EXPECT_EQ(std::string(node.GetIconName()), "I_PPRProduct");
            EXPECT_EQ(node.GetNodeOption(), 0);
        }
    }
}

TEST(TreeNode, DoesNothingAfterAnAction) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    QORNavigInstance& root = *window.box().GetRoot(1);
    window.box().ReportAction(root);
    EXPECT_FALSE(root.IsExpanded());
    EXPECT_EQ(root.GetChildCount(), 0);
}

TEST(TreeNode, BehavesLikeAnyOtherApartFromThat) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    QORNavigInstance& root = *window.box().GetRoot(1);
    const QORINavigElement_var element(root.GetNode());
    const QORINavigModify_var modify(root.GetNode());
    ASSERT_TRUE(element && modify);
    EXPECT_EQ(element->GetController(), window.box().GetController());
    EXPECT_EQ(element->GetAssociatedInstance(), &root);
    element->SetMarked(1);
    EXPECT_TRUE(root.IsMarked());
    EXPECT_EQ(element->GetMarked(), 1);
    window.box().ReportSelect(root, false);
    EXPECT_EQ(modify->IsSelected(), 1);
    window.box().ReportExpand(root);
    EXPECT_EQ(root.GetChildCount(), 2);
}

TEST(TreeNode, HasAnExtensionThatIsMadeByName) {
    QORMetaClass& meta = *VXMPFNavigModifyMBOMObject::ClassMeta();
    EXPECT_STREQ(meta.GetName(), "VXMPFNavigModifyMBOMObject");
    EXPECT_EQ(meta.GetKind(), 2);
    EXPECT_EQ(meta.GetExtendedTypes(), (std::vector<std::string>{"VXMPFNavObjectPPR_node", "VXMBomNavObject_node"}));
    const auto made = QORBaseUnknown_var::Adopt(meta.CreateItself());
    auto* const extension = dynamic_cast<VXMPFNavigModifyMBOMObject*>(made.Get());
    ASSERT_NE(extension, nullptr);
    EXPECT_EQ(extension->IsActive(), 0);
    extension->SetCallback();
    extension->ProcessAfterAction();
    EXPECT_EQ(extension->IsActive(), 0);
}

/// A tree object whose nodes are of the other type that the extension knows.
class OtherTreeObject : public QORBaseUnknown {
public:
    QORMetaClass* GetMetaObject() const override {
        static QORMetaClass meta("VXMPFNavObjectPPR", Implementation, QORMetaClass::OfBaseUnknown(), "QORNull",
                                 "WindowTests", nullptr);
        return &meta;
    }
    QORStatus QueryInterface(const QORInterfaceID& interface, void** found) override {
        const QORStatus status = QORAnswer(interface, found, tie_);
        return status < 0 ? QORBaseUnknown::QueryInterface(interface, found) : status;
    }
    QORListValQORUnicodeString* GetIdentificators() {
        auto labels = std::make_unique<QORListValQORUnicodeString>();
        labels->Append("other");
        return labels.release();
    }
    QORListValQORBaseUnknown_var* GetChildren() { return new QORListValQORBaseUnknown_var(); }

private:
    QORINavigateObjectTie<OtherTreeObject> tie_{this};
};

TEST(TreeNode, OfTheOtherTypeIsPlainAndKeepsItsIcon) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    const auto object = QORBaseUnknown_var::Adopt(new OtherTreeObject());
    ASSERT_EQ(window.box().AddRoot(object), QOR_OK);
    QORNavigInstance& instance = *window.box().GetRoot(2);
    QORNavigNode& node = *instance.GetNode();
    EXPECT_STREQ(node.IsA(), "VXMPFNavObjectPPR_node");
    EXPECT_TRUE(QORINavigModify_var(&node));
    node.SetIconName("I_Own");
    node.SetNodeOption(7);
    instance.Update();
    EXPECT_EQ(std::string(node.GetIconName()), "I_Own");
    EXPECT_EQ(node.GetNodeOption(), 0);
}

// Members of the window that nothing here calls.

/// A link as an object.
class ControlFlow : public QORBaseUnknown {
public:
    QORStatus QueryInterface(const QORInterfaceID& interface, void** found) override {
        const QORStatus status = QORAnswer(interface, found, tie_);
        return status < 0 ? QORBaseUnknown::QueryInterface(interface, found) : status;
    }

private:
    QORISPPControlFlowTie<ControlFlow> tie_{this};
};

TEST(WindowCases, TellLinksFromOtherObjects) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    ControlFlow link;
    QORBaseUnknown other;
    EXPECT_EQ(window->IsACaseOfLinkDeleted(&other, &link), &link);
    EXPECT_EQ(window->IsACaseOfLinkDeleted(&link, &other), nullptr);
    EXPECT_EQ(window->IsACaseOfLinkDeleted(&link, nullptr), nullptr);
    EXPECT_EQ(window->IsACaseOfActivityDeleted(&other, &link), nullptr);
}

TEST(WindowCases, TellActivitiesFromOtherObjects) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    QORBaseUnknown first;
    struct Case {
        const char* name;
        QORBaseUnknown* second;
        bool isActivity;
    };
    const Case cases[] = {{"a step", &desk.activity("one"), true},
                          {"an item", &desk.item("door"), false},
                          {"a resource", &desk.editor().addResource(nullptr, {"r"}), false},
                          {"a logical node",
                           &desk.editor().addActivity(desk.activity("one"), {"l", {}, planner::ActivityKind::Logical}),
                           false},
                          {"nothing", nullptr, false}};
    for (const Case& test : cases) {
        EXPECT_EQ(window->IsACaseOfActivityDeleted(&first, test.second), test.isActivity ? &first : nullptr)
            << test.name;
        EXPECT_EQ(window->IsACaseOfLinkDeleted(&first, test.second), nullptr) << test.name;
    }
}

} // namespace
