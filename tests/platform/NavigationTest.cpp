#include "framework/QORDictionary.h"
#include "navigation/QORINavigElement.h"
#include "navigation/QORINavigModify.h"
#include "navigation/QORINavigateObject.h"
#include "navigation/QORINavigateObjectPPR.h"
#include "navigation/QORNodeExtension.h"
#include "support/RecordingToolkit.h"
#include "visualization/QORNavigation2DViewer.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

using recording::Log;
using recording::Toolkit;

/// A tree object: its label is its text up to the first bracket, its children are what stands in the brackets,
/// "A(B C(D))" say. It answers QORINavigateObject, or QORINavigateObjectPPR when its label begins with a "p".
class Leaf : public QORBaseUnknown {
public:
    explicit Leaf(std::string text) : text_(std::move(text)) {}

    static QORMetaClass* classMeta() {
        static QORMetaClass meta("TestLeaf", Implementation, QORMetaClass::OfBaseUnknown(), "QORNull", "Tests",
                                 nullptr);
        return &meta;
    }
    QORMetaClass* GetMetaObject() const override { return classMeta(); }
    QORStatus QueryInterface(const QORInterfaceID& interface, void** out) override {
        const QORStatus own =
            text_.starts_with("p") ? QORAnswer(interface, out, ppr_) : QORAnswer(interface, out, plain_);
        return own < 0 ? QORBaseUnknown::QueryInterface(interface, out) : own;
    }

    QORListValQORUnicodeString* GetIdentificators() {
        if (onAnyLabel_) {
            std::exchange(onAnyLabel_, nullptr)();
        }
        auto labels = std::make_unique<QORListValQORUnicodeString>();
        labels->Append(QORUnicodeString(text_.substr(0, text_.find('('))));
        return labels.release();
    }
    QORListValQORBaseUnknown_var* GetChildren() {
        ++asked_;
        if (onChildren_) {
            onChildren_();
        }
        if (text_.find('(') == std::string::npos) {
            return nullptr;
        }
        auto children = std::make_unique<QORListValQORBaseUnknown_var>();
        for (const std::string& part : partsOf(text_.substr(text_.find('(') + 1, text_.size() - text_.find('(') - 2))) {
            children->Append(QORBaseUnknown_var::Adopt(new Leaf(part)));
        }
        return children.release();
    }
    void rename(const std::string& text) { text_ = text; }

    int asked_ = 0;
    std::function<void()> onChildren_;
    inline static std::function<void()> onAnyLabel_; // called at the next label of any of them

private:
    static std::vector<std::string> partsOf(const std::string& text) {
        std::vector<std::string> parts(1);
        int depth = 0;
        for (const char letter : text) {
            depth += letter == '(' ? 1 : letter == ')' ? -1 : 0;
            if (letter == ' ' && depth == 0) {
                parts.emplace_back();
            } else {
                parts.back() += letter;
            }
        }
        return parts;
    }

    std::string text_;
    QORINavigateObjectTie<Leaf> plain_{this};
    QORINavigateObjectPPRTie<Leaf> ppr_{this};
};

/// Extension of the nodes of Leaf: an icon, and the rest as QORNodeExtension has it.
class LeafNode : public QORNodeExtension {
public:
    void UpdateElem(QORNavigInstance* instance) override {
        QORNodeExtension::UpdateElem(instance);
        QORIGraphNode_var(GetImpl(0))->SetIconName("leaf");
    }
};

template <class Tie>
QORBaseUnknown* makeTie(QORBaseUnknown* implementation) {
    return new Tie(static_cast<LeafNode*>(implementation));
}

const QORMetaClass leafNodeMeta("TestLeafNode", Extension, QORMetaClass::OfBaseUnknown(), "TestLeaf_node", "Tests",
                                []() -> QORBaseUnknown* { return new LeafNode(); });
const QORFillDictionary modifyEntry("TestLeafNode", IID_QORINavigModify, &makeTie<QORINavigModifyTie<LeafNode>>);
const QORFillDictionary elementEntry("TestLeafNode", IID_QORINavigElement, &makeTie<QORINavigElementTie<LeafNode>>);

/// A tree object of a class that nobody extends the nodes of.
class Stone : public Leaf {
public:
    using Leaf::Leaf;
    QORMetaClass* GetMetaObject() const override { return QORMetaClass::OfBaseUnknown(); }
};

/// The instances that were made so far, drawn like their tree: "A*(B C)" is A, selected, opened.
std::string draw(const QORNavigInstance& instance) {
    std::string text = std::string(instance.GetNode()->GetLabel()) + (instance.IsSelected() ? "*" : "");
    for (int i = 1; i <= instance.GetChildCount(); ++i) {
        text += (i == 1 ? "(" : " ") + draw(*instance.GetChild(i));
    }
    return text + (instance.GetChildCount() > 0 ? ")" : "");
}

class Navigator : public testing::Test {
protected:
    ~Navigator() override { QORFrmEditor::SetCurrentEditor(nullptr); }
    QORVar<Leaf> add(const std::string& text) {
        auto leaf = QORVar<Leaf>::Adopt(new Leaf(text));
        EXPECT_EQ(box_->AddRoot(QORBaseUnknown_var(leaf)), QOR_OK);
        log_.take();
        return leaf;
    }
    std::string drawn() const {
        std::string text;
        for (int i = 1; i <= box_->GetRootCount(); ++i) {
            text += (i == 1 ? "" : " ") + draw(*box_->GetRoot(i));
        }
        return text;
    }
    QORNavigInstance& root() { return *box_->GetRoot(1); }
    QORINavigElement_var element(QORNavigInstance& instance) { return QORINavigElement_var(instance.GetNode()); }
    QORINavigModify_var modify(QORNavigInstance& instance) { return QORINavigModify_var(instance.GetNode()); }

    Log log_;
    Toolkit toolkit_{log_};
    QORFrmEditor editor_{nullptr};
    std::unique_ptr<QORDlgFrame> frame_ = std::make_unique<QORDlgFrame>(nullptr, "frame");
    QORViewer* viewer_ = new QORNavigation2DViewer(frame_.get(), "V", 0, 1, 1, kQORViewerPlain);
    QORNavigBox* box_ =
        new QORNavigBox(frame_.get(), "Box", &editor_, kQORGraphTree, "Bom ID", 150, 200, viewer_, nullptr);
};

TEST_F(Navigator, MakesNodesWhenTheirFatherIsOpenedAndNotBefore) {
    const auto leaf = add("A(B(D) pC)");
    EXPECT_EQ(drawn(), "A");
    EXPECT_EQ(leaf->asked_, 0);
    EXPECT_EQ(root().Expand(), QOR_OK);
    EXPECT_EQ(drawn(), "A(B pC)");
    EXPECT_EQ(log_.take(), "open A 2");
    root().Collapse();
    root().Expand();
    EXPECT_EQ(leaf->asked_, 1) << "what was made is kept";
    root().GetChild(1)->Expand();
    EXPECT_EQ(drawn(), "A(B(D) pC)");
    EXPECT_EQ(root().GetChild(1)->GetChild(1)->GetDepth(), 2);
    EXPECT_EQ(root().GetChild(2)->GetPosition(), 2);
    EXPECT_EQ(log_.take(), "closed A 2 | open A 2 | open B 1");
}

TEST_F(Navigator, NamesTheLateTypeAfterTheTreeObject) {
    add("A");
    QORNavigNode* const node = root().GetNode();
    EXPECT_STREQ(node->IsA(), "TestLeaf_node");
    EXPECT_EQ(node->IsAKindOf("TestLeaf_node"), 1);
    EXPECT_EQ(node->IsAKindOf("TestLeaf"), 0);
    EXPECT_EQ(element(root()).Impl(), node);
}

TEST_F(Navigator, LetsTheExtensionGiveANodeItsLooksAtEachUpdate) {
    const auto leaf = add("A");
    const QORIGraphNode_var node(root().GetNode());
    EXPECT_STREQ(node->GetIconName(), "leaf");
    node->SetIconName("other");
    node->SetNodeOption(5);
    leaf->rename("B");
    element(root())->Update();
    EXPECT_STREQ(node->GetIconName(), "leaf");
    EXPECT_EQ(node->GetNodeOption(), kQORNodePlain);
    EXPECT_STREQ(node->GetLabel(), "B");
    EXPECT_EQ(log_.take(), "node A other | node A other | node B other | node B other | node B  | node B leaf");
}

TEST_F(Navigator, ShowsNodesThatNobodyExtendsPlainly) {
    const auto stone = QORVar<Stone>::Adopt(new Stone("S(A)"));
    ASSERT_EQ(box_->AddRoot(stone), QOR_OK);
    EXPECT_STREQ(root().GetNode()->IsA(), "QORBaseUnknown_node");
    EXPECT_EQ(element(root()), nullptr);
    box_->ReportSelect(root(), false);
    box_->ReportAction(root());
    box_->ReportExpand(root());
    EXPECT_EQ(drawn(), "S*(A)");
    EXPECT_STREQ(root().GetNode()->GetIconName(), "");
    EXPECT_STREQ(root().GetShortHelp(), "S");
}

TEST_F(Navigator, TakesOnlyTreeObjectsForRoots) {
    QORBaseUnknown noTreeObject;
    EXPECT_LT(box_->AddRoot(nullptr), 0);
    EXPECT_LT(box_->AddRoot(QORBaseUnknown_var(&noTreeObject)), 0);
    EXPECT_EQ(box_->GetRootCount(), 0);
    EXPECT_EQ(box_->GetRoot(1), nullptr);
    EXPECT_EQ(log_.take(), "");
}

TEST_F(Navigator, LetsRootsGoWithAllBelowThem) {
    const auto leaf = add("A(B(C))");
    add("D");
    root().Expand();
    root().GetChild(1)->Expand();
    const QORVar<QORNavigInstance> held(root().GetChild(1));
    box_->ReportSelect(*held.Get(), false);
    log_.take();
    box_->RemoveAllRoots();
    box_->RemoveAllRoots();
    EXPECT_EQ(log_.take(), "selected 0 | roots 0");
    EXPECT_EQ(leaf->GetReferenceCount(), 1);
    EXPECT_EQ(held->GetBox(), nullptr);
    EXPECT_EQ(held->GetParent(), nullptr);
    EXPECT_EQ(held->GetChildCount(), 0);
    EXPECT_LT(held->Expand(), 0);
    box_->ReportSelect(*held.Get(), false);
    box_->ReportAction(*held.Get());
    box_->ReportExpand(*held.Get());
    held->SetMarked(true);
    EXPECT_EQ(log_.take(), "") << "what has left the tree isn't clicked on any more";
}

struct DepthCase {
    const char* name;
    int depth;
    const char* opened;
};

TEST_F(Navigator, OpensAsDeepAsTheControllerAllows) {
    const DepthCase cases[] = {
        {"none", 0, "A"}, {"one level", 1, "A(B)"}, {"two levels", 2, "A(B(C))"}, {"no limit", -1, "A(B(C(D)))"}};
    for (const DepthCase& row : cases) {
        box_->RemoveAllRoots();
        add("A(B(C(D)))");
        box_->GetController()->SetDepth(row.depth);
        for (QORNavigInstance* next = &root(); next; next = next->GetChild(1)) {
            const bool may = next->MayExpand();
            EXPECT_EQ(may, next->Expand() == QOR_OK) << row.name;
        }
        EXPECT_EQ(drawn(), row.opened) << row.name;
    }
}

/// A tree object whose children are itself and another one, twice each.
class Ring : public Leaf {
public:
    using Leaf::Leaf;
    QORStatus QueryInterface(const QORInterfaceID& interface, void** out) override {
        const QORStatus own = QORAnswer(interface, out, tie_);
        return own < 0 ? Leaf::QueryInterface(interface, out) : own;
    }
    QORListValQORBaseUnknown_var* GetChildren() {
        auto children = std::make_unique<QORListValQORBaseUnknown_var>();
        const auto other = QORBaseUnknown_var::Adopt(new Leaf("B"));
        for (const QORBaseUnknown_var& child : {QORBaseUnknown_var(this), other, other}) {
            children->Append(child);
        }
        return children.release();
    }

private:
    QORINavigateObjectTie<Ring> tie_{this};
};

TEST_F(Navigator, ShowsAnObjectOnceWhereNoDuplicateIsWanted) {
    const auto ring = QORVar<Ring>::Adopt(new Ring("A"));
    ASSERT_EQ(box_->AddRoot(ring), QOR_OK);
    root().Expand();
    EXPECT_EQ(drawn(), "A(A B B)");
    box_->RemoveAllRoots();
    EXPECT_FALSE(box_->IsShown(ring));
    box_->GetController()->SetNoDuplicate();
    ASSERT_EQ(box_->AddRoot(ring), QOR_OK);
    EXPECT_LT(box_->AddRoot(ring), 0);
    root().Expand();
    EXPECT_EQ(drawn(), "A(B)");
    EXPECT_TRUE(box_->IsShown(ring));
}

TEST_F(Navigator, SelectsOneOrSeveralAsTheControllerSays) {
    add("A(B C)");
    root().Expand();
    QORNavigInstance& b = *root().GetChild(1);
    QORNavigInstance& c = *root().GetChild(2);
    box_->ReportSelect(b, false);
    box_->ReportSelect(c, true);
    EXPECT_EQ(drawn(), "A(B C*)");
    box_->GetController()->SetExtensionMode(kQORExtensionMultiple);
    box_->ReportSelect(b, true);
    modify(root())->Select(1);
    EXPECT_EQ(drawn(), "A*(B* C*)");
    EXPECT_EQ(modify(b)->IsSelected(), 1);
    box_->ReportSelect(b, true);
    modify(root())->Select(0);
    EXPECT_EQ(drawn(), "A(B C*)");
    box_->ReportSelect(root(), false);
    EXPECT_EQ(drawn(), "A*(B C)");
    box_->GetController()->SetExtensionMode(kQORExtensionSingle);
    modify(b)->Select(1);
    EXPECT_EQ(drawn(), "A(B* C)");
    EXPECT_EQ(box_->GetSelection(), std::vector{&b});
}

TEST_F(Navigator, GivesNodesTheBehaviourOfTheirExtension) {
    add("A(B C)");
    box_->ReportAction(root());
    EXPECT_TRUE(root().IsExpanded()) << "an action opens";
    QORNavigInstance& c = *root().GetChild(2);
    const QORINavigElement_var node = element(c);
    EXPECT_EQ(node->GetAssociatedInstance(), &c);
    EXPECT_EQ(node->GetController(), box_->GetController());
    EXPECT_EQ(node->GetFatherContainer(), root().GetTreeObject());
    EXPECT_EQ(element(root())->GetFatherContainer(), nullptr);
    EXPECT_STREQ(c.GetShortHelp(), "C");
    log_.take();
    node->SetMarked(1);
    EXPECT_EQ(node->GetMarked(), 1);
    node->SetMarked(0);
    element(*root().GetChild(1))->Remove();
    EXPECT_EQ(c.GetPosition(), 1);
    element(root())->ProcessAfterAction();
    EXPECT_EQ(log_.take(), "node C leaf! | node C leaf | open A 1 | closed A 1");
    element(root())->Remove();
    EXPECT_EQ(log_.take(), "roots 0");
    EXPECT_EQ(node->GetAssociatedInstance(), nullptr);
}

TEST_F(Navigator, BringsANodeUpToDateAfterWhatAPersonDid) {
    const auto leaf = add("A(B)");
    const std::pair<const char*, std::function<void()>> deeds[] = {
        {"select",
         [this] {
             box_->ReportSelect(root(), false);
         }},
        {"open",
         [this] {
             box_->ReportExpand(root());
         }},
        {"extend",
         [this] {
             element(root())->ProcessAfterExtSelect();
         }},
        {"method",
         [this] {
             element(root())->ProcessAfterMethod();
         }},
    };
    for (const auto& [name, deed] : deeds) {
        leaf->rename(std::string(name) + "(B)");
        deed();
        EXPECT_STREQ(root().GetNode()->GetLabel(), name);
    }
}

TEST_F(Navigator, LeavesEverythingAsItWasWhenATreeObjectRaises) {
    const auto leaf = add("A(B)");
    leaf->onChildren_ = [] {
        throw std::runtime_error("model");
    };
    EXPECT_THROW(box_->ReportExpand(root()), std::runtime_error);
    EXPECT_FALSE(root().IsExpanded());
    EXPECT_EQ(log_.take(), "");
    leaf->onChildren_ = nullptr;
    box_->ReportExpand(root());
    EXPECT_EQ(drawn(), "A(B)");
}

TEST_F(Navigator, MayBeEmptiedWhileATreeObjectIsAsked) {
    const auto leaf = add("A(B)");
    leaf->onChildren_ = [this] {
        box_->RemoveAllRoots();
    };
    box_->ReportExpand(root());
    EXPECT_EQ(drawn(), "");
    EXPECT_EQ(log_.take(), "roots 0");
}

TEST_F(Navigator, MayBeEmptiedOrEndWhileTheFirstChildIsAskedForItsLabel) {
    add("A(B C)");
    const QORVar<QORNavigInstance> held(&root());
    Leaf::onAnyLabel_ = [this] {
        box_->RemoveAllRoots();
    };
    box_->ReportExpand(root());
    EXPECT_EQ(held->GetChildCount(), 0) << "nothing enters below what has left the tree";
    EXPECT_EQ(log_.take(), "roots 0");
    EXPECT_EQ(drawn(), "");
    add("A(B C)");
    Leaf::onAnyLabel_ = [this] {
        frame_.reset();
    };
    box_->ReportExpand(root());
    EXPECT_EQ(log_.take(), "box gone | viewer gone");
}

TEST_F(Navigator, MayEndWhileATreeObjectIsAsked) {
    const auto leaf = add("A(B)");
    leaf->onChildren_ = [this] {
        frame_.reset();
    };
    box_->ReportExpand(root());
    EXPECT_EQ(log_.take(), "box gone | viewer gone");
    EXPECT_EQ(leaf->GetReferenceCount(), 1);
}

TEST_F(Navigator, EndsWithItsFrameAndAfterItsViewerToo) {
    add("A(B)");
    root().Expand();
    log_.take();
    const recording::DialogSteps steps(log_);
    viewer_->Release();
    EXPECT_EQ(box_->GetViewer(), nullptr);
    EXPECT_EQ(box_->GetBoxFrame()->GetParent(), frame_.get());
    frame_.reset();
    EXPECT_EQ(log_.take(), "viewer gone | ended V | box gone | ended Box | ended Box | ended frame");
}

TEST_F(Navigator, TellsItsPeerOfSettings) {
    box_->GetController()->SetDepth(3);
    box_->GetGraphViewer()->setAnchoredViewpoint(1);
    EXPECT_EQ(log_.take(), "settings 3 | settings 3 anchored");
    EXPECT_STREQ(box_->GetHeading(), "Bom ID");
    DRECT rect;
    box_->GetRectDimensions(rect);
    EXPECT_EQ(rect, (DRECT{0, 0, 150, 200}));
}

TEST_F(Navigator, HasNoControllerWithoutEditorAndNoGraphWithoutViewer) {
    auto* const bare = new QORNavigBox(frame_.get(), "bare", nullptr, kQORGraphTree, "", 1, 1, nullptr, nullptr);
    EXPECT_EQ(bare->GetController(), nullptr);
    EXPECT_EQ(bare->GetGraphViewer(), nullptr);
    const auto leaf = QORVar<Leaf>::Adopt(new Leaf("A(B)"));
    EXPECT_EQ(bare->AddRoot(leaf), QOR_OK);
    EXPECT_EQ(bare->GetRoot(1)->Expand(), QOR_OK);
    EXPECT_EQ(element(*bare->GetRoot(1))->GetController(), nullptr);
}

/// A tree object with any number of children below each of a few levels.
class Wide : public Leaf {
public:
    Wide(int children, int levels) : Leaf("W"), children_(children), levels_(levels) {}
    QORStatus QueryInterface(const QORInterfaceID& interface, void** out) override {
        const QORStatus own = QORAnswer(interface, out, tie_);
        return own < 0 ? Leaf::QueryInterface(interface, out) : own;
    }
    QORListValQORBaseUnknown_var* GetChildren() {
        auto children = std::make_unique<QORListValQORBaseUnknown_var>();
        for (int i = 0; i < children_ && levels_ > 0; ++i) {
            children->Append(QORBaseUnknown_var::Adopt(new Wide(children_, levels_ - 1)));
        }
        return children.release();
    }

private:
    int children_;
    int levels_;
    QORINavigateObjectTie<Wide> tie_{this};
};

TEST_F(Navigator, OpensAndDropsManyChildrenInLinearTime) {
    const auto wide = QORVar<Wide>::Adopt(new Wide(100000, 1));
    ASSERT_EQ(box_->AddRoot(wide), QOR_OK);
    root().Expand();
    EXPECT_EQ(root().GetChild(100000)->GetPosition(), 100000);
    box_->RemoveAllRoots();
    EXPECT_EQ(wide->GetReferenceCount(), 1);
}

TEST_F(Navigator, OpensAndDropsDeepTreesWithoutRecursion) {
    const auto deep = QORVar<Wide>::Adopt(new Wide(1, 100000));
    ASSERT_EQ(box_->AddRoot(deep), QOR_OK);
    QORNavigInstance* last = &root();
    while (last->Expand() == QOR_OK && last->GetChildCount() > 0) {
        last = last->GetChild(1);
    }
    EXPECT_EQ(last->GetDepth(), 100000);
    box_->RemoveAllRoots();
    EXPECT_EQ(deep->GetReferenceCount(), 1);
}

} // namespace
