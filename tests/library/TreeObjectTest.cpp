// What the navigator sees of a bill: tree objects over the document, and the extension of their nodes.

#include "library/WindowDesk.h"
#include "support/BomText.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/navigation/QORINavigElement.h"
#include "QORPlatform/navigation/QORINavigModify.h"
#include "QORPlatform/navigation/QORINavigateObject.h"
#include "QORPlatform/navigation/QORINavigateObjectModify.h"
#include "QORPlatform/navigation/QORINavigateObjectPPR.h"
#include "QORPlatform/visualization/QORPathElement.h"
#include "VXMBomInfrastructure/model/QORISPPControlFlow.h"
#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"
#include "VXMBomInfrastructure/navigation/VXMPFNavigModifyMBOMObject.h"
#include "VXMBomInfrastructure/process/VXMProcessBomGenerator.h"

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

/// The object for the bill of a plan.
QORVar<VXMBomNavObject> objectOf(Session& session) {
    return QORVar<VXMBomNavObject>::Adopt(new VXMBomNavObject(QORISPPActivity_var(session.plan().process())));
}

TEST(TreeObject, ReadsTheBillAsItWasWhateverBecomesOfPlanAndGenerator) {
    Session session(kShop);
    const QORBaseUnknown_var own(objectOf(session).Get());
    QORBaseUnknown_var old;
    QORBaseUnknown_var current;
    {
        VXMProcessBomGenerator generator(QORBaseUnknown_var(session.plan().process()));
        DOM_Element element = generator.GetBom(0).getDocumentElement();
        old = QORBaseUnknown_var::Adopt(new VXMBomNavObject(element));
        session.editor().removeItem(session.item("pin"));
        element = generator.GetBom(1).getDocumentElement();
        current = QORBaseUnknown_var::Adopt(new VXMBomNavObject(element));
    }
    EXPECT_EQ(treeOf(own), "Bom(hinge(pin) door)");
    EXPECT_EQ(treeOf(old), "Bom(hinge(pin) door)");
    EXPECT_EQ(treeOf(current), "Bom(hinge door)");
}

TEST(TreeObject, GivesNewChildrenAtEachCall) {
    Session session(kShop);
    const auto object = objectOf(session);
    const std::unique_ptr<QORListValQORBaseUnknown_var> first(object->GetChildren());
    const std::unique_ptr<QORListValQORBaseUnknown_var> second(object->GetChildren());
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
    session.editor().rename(session.item("pin"), "BOM"); // the label of the document goes by its tag
    EXPECT_EQ(treeOf(QORBaseUnknown_var(objectOf(session).Get())), "Bom((BOM) Tür <1> & \"2\"\t)");
}

TEST(TreeObject, AnswersAllThreeInterfacesOfTheNavigator) {
    Session session(kShop);
    const auto object = objectOf(session);
    EXPECT_STREQ(object->IsA(), "VXMBomNavObject");
    EXPECT_EQ(VXMBomNavObject::ClassMeta()->CreateItself(), nullptr);
    EXPECT_EQ(static_cast<int>(VXMBomNavObject::ClassMeta()->GetKind()), 1);
    const QORINavigateObjectPPR_var ppr(object);
    ASSERT_TRUE(ppr);
    const std::unique_ptr<QORListValQORUnicodeString> labels(ppr->GetIdentificators());
    EXPECT_EQ(std::string((*labels)[1]), "Bom");
    EXPECT_FALSE(QORINavigModify_var(object)) << "that is the node's";
    const QORINavigateObjectModify_var modify(object);
    ASSERT_TRUE(modify);
    for (const int before : {0, 1, 255}) {
        auto flag = static_cast<unsigned char>(before);
        const auto path = QORVar<QORPathElement>::Adopt(modify->DecodeSentCommand(flag));
        EXPECT_EQ(flag, 0);
        EXPECT_EQ(path->GetReferenceCount(), 1);
        EXPECT_EQ(path->GetSize(), 1);
        EXPECT_EQ(path->GetElement(1).Impl(), object.Get());
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

TEST(TreeNode, DoesNothingAfterAnActionAndBehavesLikeAnyOtherApartFromThat) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    QORNavigInstance& root = *window.box().GetRoot(1);
    window.box().ReportAction(root);
    EXPECT_FALSE(root.IsExpanded());
    const QORINavigElement_var element(root.GetNode());
    const QORINavigModify_var modify(root.GetNode());
    ASSERT_TRUE(element && modify);
    EXPECT_EQ(element->GetController(), window.box().GetController());
    EXPECT_EQ(element->GetAssociatedInstance(), &root);
    element->SetMarked(1);
    EXPECT_TRUE(root.IsMarked());
    window.box().ReportSelect(root, false);
    EXPECT_EQ(modify->IsSelected(), 1);
    window.box().ReportExpand(root);
    EXPECT_EQ(root.GetChildCount(), 2);
}

TEST(TreeNode, HasAnExtensionThatIsMadeByName) {
    QORMetaClass& meta = *VXMPFNavigModifyMBOMObject::ClassMeta();
    EXPECT_STREQ(meta.GetName(), "VXMPFNavigModifyMBOMObject");
    EXPECT_EQ(static_cast<int>(meta.GetKind()), 2);
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
        static QORMetaClass meta("VXMPFNavObjectPPR", ENUMTypeOfClass::Implementation, QORMetaClass::OfBaseUnknown(),
                                 "QORNull", "WindowTests", nullptr);
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

TEST(WindowCases, TellActivitiesAndLinksFromOtherObjects) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    planner::Activity& one = desk.activity("one");
    ControlFlow link;
    QORBaseUnknown first;
    const struct {
        const char* name;
        QORBaseUnknown* second;
        bool isActivity;
        bool isLink;
    } cases[] = {
        {"a step", &one, true, false},
        {"a link", &link, false, true},
        {"an item", &desk.item("door"), false, false},
        {"a resource", &desk.editor().addResource(nullptr, {"r"}), false, false},
        {"a logical node", &desk.editor().addActivity(one, {"l", {}, planner::ActivityKind::Logical}), false, false},
        {"nothing", nullptr, false, false}};
    for (const auto& test : cases) {
        EXPECT_EQ(window->IsACaseOfActivityDeleted(&first, test.second), test.isActivity ? &first : nullptr)
            << test.name;
        EXPECT_EQ(window->IsACaseOfLinkDeleted(&first, test.second), test.isLink ? test.second : nullptr) << test.name;
    }
    EXPECT_EQ(window->IsACaseOfLinkDeleted(&link, &first), nullptr);
}

} // namespace
