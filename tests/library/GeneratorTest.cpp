// The driver: settings and algorithm, when a bill is computed, what is left after a model that raises.

#include "library/Bills.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/framework/QORNullVarError.h"
#include "VXMBomInfrastructure/generation/StrX.h"
#include "VXMBomInfrastructure/generation/VXMHandleOrder.h"
#include "VXMBomInfrastructure/model/VXMIMVWMBOMViewerSettingAtt.h"

#include <array>

using namespace testmodel;

namespace {

constexpr int kLeftAlone = -1;

/// The settings component, registered for as long as this lives. It counts the settings that are read.
class Settings {
public:
    Settings() { current_ = this; }
    ~Settings() { current_ = nullptr; }
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    std::array<int, 13> values{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    int read = 0;

private:
    class Control final : public QORBaseUnknown {
    public:
        QORStatus QueryInterface(const QORInterfaceID& wanted, void** found) override {
            return QORAnswer(wanted, found, tie_);
        }
        QORStatus GetShowAdhesiveCurve(int& value) const { return get(0, value); }
        QORStatus GetShowAdhesivePoint(int& value) const { return get(1, value); }
        QORStatus GetShowArcWeld(int& value) const { return get(2, value); }
        QORStatus GetShowClinch(int& value) const { return get(3, value); }
        QORStatus GetShowGlueBead(int& value) const { return get(4, value); }
        QORStatus GetShowGlueDrop(int& value) const { return get(5, value); }
        QORStatus GetShowRivet(int& value) const { return get(6, value); }
        QORStatus GetShowSealantCurve(int& value) const { return get(7, value); }
        QORStatus GetShowSealantPoint(int& value) const { return get(8, value); }
        QORStatus GetShowScrew(int& value) const { return get(9, value); }
        QORStatus GetShowSpotWeld(int& value) const { return get(10, value); }
        QORStatus GetShowStud(int& value) const { return get(11, value); }
        QORStatus GetShowAssignedFastenersOnly(int& value) const { return get(12, value); }

    private:
        static QORStatus get(std::size_t index, int& value) {
            ++current_->read;
            if (current_->values[index] != kLeftAlone) {
                value = current_->values[index];
            }
            return QOR_FAILED;
        }
        VXMIMVWMBOMViewerSettingAttTie<Control> tie_{this};
    };

    static QORBaseUnknown* create() { return new Control(); }

    static inline Settings* current_ = nullptr;
    QORMetaClass class_{"VXMMVWMBOMViewerSettingCtrl",
                        ENUMTypeOfClass::Implementation,
                        QORMetaClass::OfBaseUnknown(),
                        "QORNull",
                        "test",
                        &Settings::create};
};

TEST(Settings, AreReadOnce) {
    Settings settings;
    VXMProcessBomGenerator generator(nullptr);
    generator.GetBom(1);
    generator.GetBom(1);
    EXPECT_EQ(settings.read, 13);
}

TEST(Settings, WithoutTheComponentAllAreOn) {
    const VXMProcessBomGenerator generator(nullptr);
    EXPECT_EQ(generator.GetFastenersShowMode(), 4095);
    EXPECT_EQ(generator.GetAssignedFastenersShowMode(), 1);
}

TEST(Settings, OnlyOneMeansOn) {
    for (std::size_t index = 0; index < 13; ++index) {
        for (const int value : {0, 2, kLeftAlone}) {
            Settings settings;
            settings.values[index] = value;
            const VXMResourceBomGenerator generator(nullptr);
            const bool on = value == kLeftAlone;
            const int bit = index < 12 ? 1 << index : 0;
            EXPECT_EQ(generator.GetFastenersShowMode(), on ? 4095 : 4095 - bit) << index << "=" << value;
            EXPECT_EQ(generator.GetAssignedFastenersShowMode(), on || index < 12 ? 1 : 0) << index << "=" << value;
        }
    }
}

TEST(Settings, EachTypeHasItsSwitch) {
    const char* const drawing = "S1: *0{Adhesive Curve}? *1{Adhesive Point}? *2{Arc Weld}? *3{Clinch}? *4{Glue Bead}? "
                                "*5{Glue Drop}? *6{Rivet}? "
                                "*7{Sealant Curve}? *8{Sealant Point}? *9{Screw}? *10{Spot Weld}? *11{Stud}? | S2";
    for (std::size_t index = 0; index < 12; ++index) {
        Settings settings;
        settings.values.fill(0);
        settings.values[index] = 1;
        World world;
        VXMProcessBomGenerator generator(handle(drawPlan(world, drawing)));
        EXPECT_EQ(bomText(generator.GetBom(0)), "*" + std::to_string(index));
    }
}

TEST(Algorithm, IsChosenByTheEnvironment) {
    const std::pair<const char*, const char*> rows[] = {{nullptr, "O P"}, {"", "O P"},      {"1", "O P"},
                                                        {"TRUE", "O(P)"}, {"true", "O(P)"}, {"tRuE", "O(P)"},
                                                        {"TRUE ", "O P"}, {"FALSE", "O P"}};
    World world;
    const QORBaseUnknown_var root = handle(drawPlan(world, "S1: +P | S2: >O"));
    for (const auto& [value, bom] : rows) {
        const Environment environment("FAB_BOM_OLD_ALGORITHM", value);
        VXMProcessBomGenerator generator(root);
        const Environment later("FAB_BOM_OLD_ALGORITHM", "TRUE"); // is read at construction alone
        EXPECT_EQ(bomText(generator.GetBom(0)), bom) << (value ? value : "(absent)");
    }
}

TEST(GetBom, ComputesOnlyWhenItHasTo) {
    World world;
    VXMProcessBomGenerator generator(handle(drawPlan(world, "S1: +P | S2: +Q")));
    const DOM_Document first = generator.GetBom(255); // the first time any flag will do
    const int calls = world.calls.count;
    EXPECT_GT(calls, 0);
    EXPECT_EQ(generator.GetBom(0), first);
    EXPECT_EQ(generator.GetBom(2), first);
    EXPECT_EQ(world.calls.count, calls);
    world["S1"].items[2]->clear();
    const DOM_Document second = generator.GetBom(1);
    EXPECT_FALSE(second == first);
    EXPECT_EQ(world.calls.count, 2 * calls - 1); // one name less to ask for
    EXPECT_EQ(bomText(first), "Q P");
    EXPECT_EQ(bomText(second), "Q");
    EXPECT_EQ(listText(generator.GetPreviewObjects()), "Q");
}

TEST(GetBom, ARebuiltBillForgetsEarlierRemovals) {
    World world;
    VXMProcessBomGenerator generator(handle(drawPlan(world, "S1: =P | S2: -P | S3: =P")));
    EXPECT_EQ(bomText(generator.GetBom(0)), "P");
    world["S2"].items[4]->clear();
    EXPECT_EQ(bomText(generator.GetBom(1)), "");
}

TEST(GetBom, WithoutARootThatCanBeWalkedTheBillIsEmpty) {
    World world;
    const QORBaseUnknown_var stranger = handle(world.thing("X", kSpec));
    const std::unique_ptr<VXMBomGenerator> generators[] = {
        std::make_unique<VXMProcessBomGenerator>(nullptr), std::make_unique<VXMResourceBomGenerator>(nullptr),
        std::make_unique<VXMProcessBomGenerator>(stranger), std::make_unique<VXMResourceBomGenerator>(stranger)};
    for (const auto& generator : generators) {
        for (const int flag : {0, 1, 0}) {
            const DOM_Document document = generator->GetBom(static_cast<unsigned char>(flag));
            EXPECT_TRUE(document.getDocumentElement().getNodeName().equals("BOM"));
            EXPECT_EQ(bomText(document), "");
            EXPECT_EQ(generator->GetPreviewObjects().Size(), 0);
        }
    }
}

TEST(GetBom, DocumentHandlesOutliveTheGenerator) {
    World world;
    DOM_Document document;
    DOM_Node element;
    {
        VXMProcessBomGenerator generator(handle(drawPlan(world, "S1: +A(P) | S2")));
        document = generator.GetBom(0);
        element = DOM_Document(generator.GetBom(1)).getDocumentElement().getFirstChild();
    }
    EXPECT_EQ(bomText(document), "A(P)");
    EXPECT_EQ(bomText(element), "P");
}

TEST(GetBom, GraphAndTreeStayUntilTheNextOne) {
    World world;
    Thing& root = drawPlan(world, "S1: +P | S2: -P +Q");
    VXMProcessBomGenerator generator(handle(root));
    generator.GetBom(0);
    EXPECT_EQ(graphText(generator, world), "R=1<S2 S1=2>S2 S2=3<S1>R");
    EXPECT_EQ(treeText(*generator.GetTopNode()), "1");
    generator.FreeMN();
    generator.FreeFN();
    EXPECT_EQ(generator.GetTopNode(), nullptr);
    generator.CleanMBOM_RemoveAssignments(); // meets no node
    EXPECT_EQ(generator.CheckUse(handle(root)), nullptr);
    EXPECT_EQ(generator.CheckUse(nullptr), nullptr);
}

/// The structure below a node of its own that CreateProductChildren makes for a product, given what is expanded above.
std::string structureOf(Thing& product, std::initializer_list<Thing*> path) {
    VXMProcessBomGenerator generator(nullptr);
    generator.GetBom(0);
    auto* const node = new VXMFabMBOMNode(handle(product), 1, 1, VXMFabMBOMNode::AT_FirstAssign, 1);
    generator.AddMBOMNodeToList(node);
    QORListValQORBaseUnknown_var expanded;
    for (Thing* above : path) {
        expanded.Append(handle(*above));
    }
    generator.CreateProductChildren(node, 1, 1, expanded);
    return treeText(*node);
}

TEST(Structure, OnlyAssembliesAreLookedUpInThePathOfTheCaller) {
    World world;
    Thing& product = world.thing("X", kProduct);
    Thing& part = world.thing("Y", kProduct);
    Thing& assembly = world.thing("A", kAssembly);
    product.parts = Things{&part, &assembly};
    part.parts = Things{&product};
    assembly.held = Things{&product};
    EXPECT_EQ(structureOf(product, {}), "2(3) 4(5(6(7) 8))");
    EXPECT_EQ(structureOf(product, {&product, &part}), structureOf(product, {}));
    EXPECT_EQ(structureOf(product, {&assembly}), "2(3) 4");
}

/// A model that publishes while it is read, so that somebody asks the generator in the middle of its computation.
TEST(GetBom, AskedByTheModelThatItReadsGivesTheLastBill) {
    World world;
    VXMProcessBomGenerator generator(handle(drawPlan(world, "S1: +A(P) | S2: -X +Q")));
    int asked = 0;
    world.calls.during = [&] {
        const auto during = std::exchange(world.calls.during, nullptr);
        EXPECT_THROW(generator.MainCheckFlow(), std::logic_error);
        EXPECT_THROW(generator.FreeFN(), std::logic_error);
        EXPECT_THROW(generator.FreeMN(), std::logic_error);
        if (asked++ == 0) {
            EXPECT_THROW(generator.GetBom(1), std::logic_error);
        }
        world.calls.during = during;
    };
    EXPECT_EQ(bomText(generator.GetBom(0)), "Q A(P)");
    EXPECT_EQ(asked, world.calls.count);
    const DOM_Document last = generator.GetBom(0);
    world["S2"].items[2]->clear();
    world.calls.during = [&] {
        EXPECT_EQ(generator.GetBom(1), last);
        EXPECT_EQ(listText(generator.GetPreviewObjects()), "Q P A");
    };
    EXPECT_EQ(bomText(generator.GetBom(1)), "A(P)");
    EXPECT_EQ(bomText(last), "Q A(P)");
}

/// The same while somebody runs one of the operations by hand that read the model.
TEST(Operations, CalledByHandKeepGraphAndTreeFromTheModel) {
    World world;
    Thing& root = drawPlan(world, "S1: +A(P) | S2: +B[Q]");
    VXMProcessBomGenerator generator(handle(root));
    generator.GetBom(0);
    const DOM_Document last = generator.GetBom(0);
    VXMFabMBOMNode* const top = generator.GetTopNode();
    VXMFabFlowNode* const end = generator.CheckUse(handle(root));
    world.calls.during = [&] {
        EXPECT_EQ(generator.GetBom(1), last);
        EXPECT_THROW(generator.FreeFN(), std::logic_error);
        EXPECT_THROW(generator.FreeMN(), std::logic_error);
    };
    const std::string before = treeText(*top);
    generator.CreateMBOM(end, top, 1);
    generator.CreateOldMBOM(end, top, 1);
    generator.CreateProductChildren(top->GetSuccessor(1), 1, 1, {});
    generator.CreateOldMAChildren(top->GetSuccessor(1), 1, 1);
    EXPECT_EQ(generator.GetFirstFlowNode(handle(world["S2"])), handle(world["S1"]));
    EXPECT_EQ(generator.CheckFlow(nullptr, end, 0), nullptr); // meets nothing new
    EXPECT_NE(treeText(*top), before);
    world.calls.during = nullptr;
    EXPECT_EQ(bomText(generator.GetBom(1)), bomText(last));
}

TEST(Operations, ANodeOfNoKnownTypeIsDeletedAlone) {
    VXMProcessBomGenerator generator(nullptr);
    generator.GetBom(0);
    VXMFabMBOMNode* const top = generator.GetTopNode();
    auto* const node = new VXMFabMBOMNode(nullptr, 1, 1, VXMFabMBOMNode::AssignmentType(7), 1);
    generator.AddMBOMNodeToList(node);
    top->AddSuccessor(node);
    node->SetPredecessor(top);
    EXPECT_EQ(generator.RemoveNodeFromMBOMFlow(node), 1);
    EXPECT_EQ(generator.RemoveNodeAndChildrenFromListAndDico(top), 1);
    EXPECT_EQ(generator.GetTopNode(), nullptr);
}

TEST(HandleOrder, GoesByTheImplementations) {
    World world;
    Thing& first = world.thing("A", kItem | kProduct);
    Thing& second = world.thing("B", kItem);
    const QORBaseUnknown_var a = handle(first);
    const QORBaseUnknown_var b = handle(second);
    EXPECT_EQ(a < b, std::less<>()(static_cast<QORBaseUnknown*>(&first), static_cast<QORBaseUnknown*>(&second)));
    EXPECT_NE(a < b, b < a);
    const QORISPPItem_var asItem(a);
    const QORBaseUnknown_var through(static_cast<QORBaseUnknown*>(asItem.Get()));
    EXPECT_FALSE(a < through);
    EXPECT_FALSE(through < a);
    const QORBaseUnknown_var none;
    EXPECT_THROW((void)(a < none), QORNullVarError);
    EXPECT_THROW((void)(none < a), QORNullVarError);
    EXPECT_THROW((void)(none < none), QORNullVarError);
}

TEST(StrX, GivesNarrowTextOfTheDocumentsTexts) {
    for (const char* text : {"", "plain", "T\xC3\xBCr \xE2\x82\xAC \xF0\x9F\x94\xA9"}) {
        const DOMString wide(text);
        EXPECT_STREQ(StrX(wide).localForm(), text);
        const StrX narrow(wide.rawBuffer());
        EXPECT_STREQ(static_cast<const char*>(narrow), text);
    }
    EXPECT_EQ(StrX(static_cast<const unsigned short*>(nullptr)).localForm(), nullptr);
}

TEST(StrX, HasATextOfItsOwnAsACopy) {
    StrX text(DOMString("first"));
    const StrX copy(text);
    text = StrX(DOMString("second"));
    StrX moved(std::move(text));
    const StrX none(static_cast<const unsigned short*>(nullptr));
    EXPECT_STREQ(copy.localForm(), "first");
    EXPECT_STREQ(moved.localForm(), "second");
    moved = none;
    EXPECT_EQ(moved.localForm(), nullptr);
}

} // namespace
