#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/navigation/QORINavigElement.h"
#include "QORPlatform/navigation/QORINavigModify.h"
#include "QORPlatform/navigation/QORINavigateObject.h"
#include "QORPlatform/navigation/QORINavigateObjectPPR.h"
#include "QORPlatform/navigation/QORNodeExtension.h"
#include "QORPlatform/visualization/QORViewer.h"
#include "support/RecordingToolkit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using recording::Log;
using recording::Toolkit;

using Objects = std::vector<QORBaseUnknown_var>;

/// A tree object: its label is its text up to the first bracket, its children are what stands in the brackets,
/// "A(B C(D))" say, or what a test gives it. It answers QORINavigateObject, or QORINavigateObjectPPR when its label
/// begins with a "p".
class Leaf : public QORBaseUnknown {
public:
    static QORVar<Leaf> make(const std::string& text) { return QORVar<Leaf>::Adopt(new Leaf(text)); }

    QORMetaClass* GetMetaObject() const override {
        static QORMetaClass meta("TestLeaf", ENUMTypeOfClass::Implementation, QORMetaClass::OfBaseUnknown(), "QORNull",
                                 "Tests", nullptr);
        return extended_ ? &meta : QORMetaClass::OfBaseUnknown();
    }
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
        auto children = std::make_unique<QORListValQORBaseUnknown_var>();
        for (const QORBaseUnknown_var& child : below_ ? below_() : inBrackets()) {
            children->Append(child);
        }
        return children->Size() == 0 ? nullptr : children.release();
    }

    std::string text_;
    bool extended_ = true; // whether anybody extends its nodes
    int asked_ = 0;
    std::function<Objects()> below_;
    inline static std::function<void()> onAnyLabel_; // called at the next label of any of them

private:
    explicit Leaf(const std::string& text) : text_(text) {}

    Objects inBrackets() const {
        Objects children;
        std::string part;
        int depth = 0;
        for (const char letter : text_) {
            depth -= letter == ')' ? 1 : 0;
            if ((letter == ' ' && depth == 1) || (letter == ')' && depth == 0)) {
                children.emplace_back(make(std::exchange(part, "")));
            } else if (depth > 0) {
                part += letter;
            }
            depth += letter == '(' ? 1 : 0;
        }
        return children;
    }

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

const QORMetaClass leafNodeMeta("TestLeafNode", ENUMTypeOfClass::Extension, QORMetaClass::OfBaseUnknown(),
                                "TestLeaf_node", "Tests", []() -> QORBaseUnknown* { return new LeafNode(); });
const QORFillDictionary modifyEntry("TestLeafNode", IID_QORINavigModify, &makeTie<QORINavigModifyTie<LeafNode>>);
const QORFillDictionary elementEntry("TestLeafNode", IID_QORINavigElement, &makeTie<QORINavigElementTie<LeafNode>>);

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
    Navigator() { makeBox(); }
    ~Navigator() override { QORFrmEditor::SetCurrentEditor(nullptr); }
    void makeBox() {
        frame_ = std::make_unique<QORDlgFrame>(nullptr, "frame");
        viewer_ = new QORNavigation2DViewer(frame_.get(), "V", 0, 1, 1, kQORViewerPlain);
        box_ = new QORNavigBox(frame_.get(), "Box", &editor_, kQORGraphTree, "Bom ID", 150, 200, viewer_, nullptr);
        log_.take();
    }
    QORVar<Leaf> add(const std::string& text) { return add(Leaf::make(text)); }
    QORVar<Leaf> add(const QORVar<Leaf>& leaf) {
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
    std::unique_ptr<QORDlgFrame> frame_;
    QORViewer* viewer_ = nullptr;
    QORNavigBox* box_ = nullptr;
};

TEST_F(Navigator, MakesNodesWhenTheirFatherIsOpenedAndNotBefore) {
    const auto leaf = add("A(B(D) pC)");
    EXPECT_EQ(drawn(), "A");
    EXPECT_EQ(leaf->asked_, 0);
    EXPECT_EQ(root().Expand(), QOR_OK);
    EXPECT_EQ(drawn(), "A(B pC)");
    EXPECT_EQ(log_.take(), "+A 1-2 | open A");
    root().Collapse();
    root().Expand();
    EXPECT_EQ(leaf->asked_, 1) << "what was made is kept";
    root().GetChild(1)->Expand();
    EXPECT_EQ(drawn(), "A(B(D) pC)");
    EXPECT_EQ(root().GetChild(1)->GetChild(1)->GetDepth(), 2);
    EXPECT_EQ(root().GetChild(2)->GetPosition(), 2);
    EXPECT_EQ(log_.take(), "closed A | open A | +B 1-1 | open B");
}

TEST_F(Navigator, ShowsNodesThatNobodyExtendsPlainly) {
    const auto stone = Leaf::make("S(A)");
    stone->extended_ = false;
    add(stone);
    EXPECT_STREQ(root().GetNode()->IsA(), "QORBaseUnknown_node");
    EXPECT_EQ(element(root()), nullptr);
    box_->ReportSelect(root(), false);
    box_->ReportAction(root());
    box_->ReportExpand(root());
    EXPECT_EQ(drawn(), "S*(A)");
    EXPECT_STREQ(root().GetNode()->GetIconName(), "");
    EXPECT_STREQ(root().GetShortHelp(), "S");
    frame_.reset();
    EXPECT_EQ(QORDictionary::Get().FindClass("QORBaseUnknown_node"), nullptr) << "the late type has gone";
}

TEST_F(Navigator, TakesOnlyTreeObjectsForRoots) {
    QORBaseUnknown noTreeObject;
    EXPECT_LT(box_->AddRoot(nullptr), 0);
    EXPECT_LT(box_->AddRoot(QORBaseUnknown_var(&noTreeObject)), 0);
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
    EXPECT_EQ(log_.take(), "-root 1-2 | selected 0");
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

TEST_F(Navigator, OpensAsDeepAsTheControllerAllows) {
    const std::pair<int, const char*> cases[] = {{0, "A"}, {1, "A(B)"}, {2, "A(B(C))"}, {-1, "A(B(C(D)))"}};
    for (const auto& [depth, opened] : cases) {
        box_->RemoveAllRoots();
        add("A(B(C(D)))");
        box_->GetController()->SetDepth(depth);
        for (QORNavigInstance* next = &root(); next; next = next->GetChild(1)) {
            const bool may = next->MayExpand();
            EXPECT_EQ(may, next->Expand() == QOR_OK) << depth;
        }
        EXPECT_EQ(drawn(), opened) << depth;
    }
}

TEST_F(Navigator, ShowsAnObjectOnceWhereNoDuplicateIsWanted) {
    const auto ring = Leaf::make("A");
    const auto other = Leaf::make("B");
    ring->below_ = [&] {
        return Objects{ring, other, other};
    };
    add(ring);
    root().Expand();
    EXPECT_EQ(drawn(), "A(A B B)");
    box_->RemoveAllRoots();
    EXPECT_FALSE(box_->IsShown(ring));
    box_->GetController()->SetNoDuplicate();
    add(ring);
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

TEST_F(Navigator, MakesLongListsInPortions) {
    const auto noTreeObject = QORBaseUnknown_var::Adopt(new QORBaseUnknown());
    const auto leaf = add("A");
    leaf->below_ = [noTreeObject] {
        return Objects{Leaf::make("B"), noTreeObject, Leaf::make("C"), Leaf::make("D"), Leaf::make("E")};
    };
    box_->SetPortion(2);
    root().Expand();
    EXPECT_EQ(drawn(), "A(B C)");
    EXPECT_EQ(root().GetPendingCount(), 2);
    EXPECT_EQ(root().GetChild(2)->GetOrdinal(), 3);
    Leaf::onAnyLabel_ = [] {
        throw std::runtime_error("model");
    };
    EXPECT_THROW(root().Fetch(1), std::runtime_error);
    EXPECT_EQ(root().Fetch(1), 1);
    EXPECT_EQ(root().Fetch(9), 1);
    EXPECT_EQ(root().Fetch(9), 0);
    EXPECT_EQ(log_.take(), "+A 1-2 | open A | +A 3-3 | +A 4-4");
    root().GetChild(1)->Remove();
    EXPECT_EQ(root().FindChild(1), nullptr);
    EXPECT_EQ(root().FindChild(4), root().GetChild(2));
    EXPECT_EQ(leaf->asked_, 1);
}

/// Counts how often a box publishes that other nodes are selected.
class SelectionReader : public QOREventSubscriber {
public:
    explicit SelectionReader(QORNavigBox& box) {
        AddCallback(this, &box, QORNavigBox::SELECTION_CHANGED(), &SelectionReader::onChange, nullptr);
    }
    void onChange(const char*, void*, QORNotification*, void*, long) { ++count_; }

    int count_ = 0;
};

TEST_F(Navigator, PublishesAWholeSelectionAsOneChange) {
    const auto leaf = add("A(B C D)");
    root().Expand();
    QORNavigInstance& b = *root().GetChild(1);
    QORNavigInstance& d = *root().GetChild(3);
    log_.take();
    const SelectionReader reader(*box_);
    leaf->text_ = "a";
    box_->ReportSelection({&b, &root(), &d});
    EXPECT_EQ(drawn(), "A(B C D*)") << "one node, where more aren't allowed";
    box_->GetController()->SetExtensionMode(kQORExtensionMultiple);
    box_->ReportSelection({&b, &root(), &d, nullptr});
    box_->ReportSelection({&d, &root(), &b});
    EXPECT_EQ(drawn(), "a*(B* C D*)");
    EXPECT_EQ(reader.count_, 2);
    box_->RemoveAllRoots();
    EXPECT_EQ(reader.count_, 3);
}

TEST_F(Navigator, GivesNodesTheBehaviourOfTheirExtension) {
    add("A(B C)");
    box_->ReportAction(root());
    EXPECT_TRUE(root().IsExpanded()) << "an action opens";
    QORNavigInstance& c = *root().GetChild(2);
    const QORINavigElement_var node = element(c);
    EXPECT_STREQ(c.GetNode()->IsA(), "TestLeaf_node");
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
    EXPECT_EQ(log_.take(), "node C leaf! | node C leaf | -A 1-1 | closed A");
    element(root())->Remove();
    EXPECT_EQ(log_.take(), "-root 1-1");
    EXPECT_EQ(node->GetAssociatedInstance(), nullptr);
}

TEST_F(Navigator, BringsANodeUpToDateAfterWhatAPersonDid) {
    const auto leaf = add("A(B)");
    const auto isUpToDateAfter = [&](const std::function<void()>& deed) {
        leaf->text_ = "A" + leaf->text_;
        deed();
        return std::string(root().GetNode()->GetLabel()) + "(B)" == leaf->text_;
    };
    EXPECT_TRUE(isUpToDateAfter([this] { box_->ReportSelect(root(), false); }));
    EXPECT_TRUE(isUpToDateAfter([this] { box_->ReportExpand(root()); }));
    EXPECT_TRUE(isUpToDateAfter([this] { element(root())->ProcessAfterExtSelect(); }));
    EXPECT_TRUE(isUpToDateAfter([this] { element(root())->ProcessAfterMethod(); }));
}

TEST_F(Navigator, LeavesEverythingAsItWasWhenATreeObjectRaises) {
    const auto leaf = add("A(B)");
    leaf->below_ = []() -> Objects {
        throw std::runtime_error("model");
    };
    EXPECT_THROW(box_->ReportExpand(root()), std::runtime_error);
    EXPECT_FALSE(root().IsExpanded());
    EXPECT_EQ(log_.take(), "");
    leaf->below_ = nullptr;
    box_->ReportExpand(root());
    EXPECT_EQ(drawn(), "A(B)");
}

TEST_F(Navigator, MayBeEmptiedOrEndWhileATreeObjectIsAsked) {
    const std::pair<std::function<void()>, const char*> deeds[] = {
        {[this] { box_->RemoveAllRoots(); }, "-root 1-1"}, {[this] { frame_.reset(); }, "box gone | viewer gone"}};
    for (const auto& [deed, told] : deeds) {
        for (const bool atLabel : {true, false}) {
            makeBox();
            const auto leaf = add("A");
            const QORVar<QORNavigInstance> held(&root());
            leaf->below_ = [act = deed, atLabel] {
                if (atLabel) {
                    Leaf::onAnyLabel_ = act;
                } else {
                    act();
                }
                return Objects{Leaf::make("B"), Leaf::make("C")};
            };
            box_->ReportExpand(root());
            EXPECT_EQ(log_.take(), told) << atLabel;
            EXPECT_EQ(held->GetChildCount(), 0) << "nothing enters below what has left the tree";
        }
    }
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

TEST_F(Navigator, HasNoControllerWithoutEditorAndNoGraphWithoutViewer) {
    auto* const bare = new QORNavigBox(frame_.get(), "bare", nullptr, kQORGraphTree, "", 1, 1, nullptr, nullptr);
    EXPECT_EQ(bare->GetController(), nullptr);
    EXPECT_EQ(bare->GetGraphViewer(), nullptr);
    EXPECT_EQ(bare->AddRoot(Leaf::make("A(B)")), QOR_OK);
    EXPECT_EQ(bare->GetRoot(1)->Expand(), QOR_OK);
    EXPECT_EQ(element(*bare->GetRoot(1))->GetController(), nullptr);
}

/// A tree object with any number of children below each of a few levels.
QORVar<Leaf> wide(int children, int levels) {
    auto leaf = Leaf::make("W");
    leaf->below_ = [=] {
        Objects below;
        for (int i = 0; i < children && levels > 0; ++i) {
            below.emplace_back(wide(children, levels - 1));
        }
        return below;
    };
    return leaf;
}

TEST_F(Navigator, OpensAndDropsManyAndDeepTreesInLinearTimeWithoutRecursion) {
    for (const auto& [children, levels] : {std::pair(100000, 1), std::pair(1, 100000)}) {
        const auto leaf = add(wide(children, levels));
        QORNavigInstance* last = &root();
        while (last->Expand() == QOR_OK && last->GetChildCount() > 0) {
            last = last->GetChild(last->GetChildCount());
        }
        EXPECT_EQ(last->GetDepth(), levels);
        EXPECT_EQ(last->GetPosition(), children);
        box_->RemoveAllRoots();
        EXPECT_EQ(leaf->GetReferenceCount(), 1);
    }
}

} // namespace
