// The plan as a document of the platform, its root, and items that can be seen.

#include "planner/PlanText.h"
#include "planner/edit/EditSession.h"

#include "frame/QORInit.h"
#include "model/QORISPPActivityModificationEvents.h"
#include "model/QORISPPActivityRoot.h"
#include "model/QORISPPProcessContainer.h"
#include "planner/file/PlanReader.h"
#include "visualization/QORI3DGeoVisu.h"

#include <gtest/gtest.h>

#include <filesystem>

using editing::kWorld;
using editing::Session;

namespace {

TEST(Document, LeadsToTheRootActivity) {
    Session s(kWorld);
    EXPECT_EQ(s.document().IsAKindOf("QORProcess"), 1);
    const QORInit_var init(&s.document());
    ASSERT_TRUE(init);
    const auto container = QORBaseUnknown_var::Adopt(init->GetRootContainer("QORISPPProcessContainer"));
    const std::unique_ptr<QORListValQORBaseUnknown_var> processes(
        QORISPPProcessContainer_var(container)->GetAllProcess());
    ASSERT_EQ(processes->Size(), 1);
    EXPECT_EQ((*processes)[1].Impl(), s.plan().process());
    EXPECT_EQ(init->GetRootContainer("QORISPPItem"), nullptr);
    EXPECT_EQ(init->GetRootContainer(nullptr), nullptr);
}

TEST(Document, StaysAsLongAsItsContainer) {
    QORBaseUnknown_var container;
    {
        Session s(kWorld);
        container = QORBaseUnknown_var::Adopt(s.document().GetRootContainer("QORISPPProcessContainer"));
    }
    const std::unique_ptr<QORListValQORBaseUnknown_var> processes(
        QORISPPProcessContainer_var(container)->GetAllProcess());
    EXPECT_TRUE(QORISPPActivityRoot_var((*processes)[1]));
}

TEST(Root, AloneAnswersForTheWholePlan) {
    Session s(kWorld);
    const QORISPPActivityModificationEvents_var events(s.plan().process());
    EXPECT_TRUE(QORISPPActivityRoot_var(s.plan().process()));
    EXPECT_NE(events->GetEventPublisher(), nullptr);
    EXPECT_EQ(events->GetEventPublisher(), events->GetEventPublisher());
    EXPECT_FALSE(QORISPPActivityRoot_var(&s.activity("load")));
    EXPECT_FALSE(QORISPPActivityModificationEvents_var(&s.activity("load")));
    Session empty(R"({"version": 1})");
    EXPECT_TRUE(QORISPPActivityRoot_var(empty.plan().process())) << "also where the file has no process";
}

struct ShapeCase {
    const char* item; // what stands behind the item's kind
    QORGeoShape::Kind kind;
    std::vector<double> sizes;
    const char* file;
    const char* part;
    std::vector<double> place;
};

const ShapeCase kShapes[] = {
    {R"("shape": {"box": [1, 2, 3]})", QORGeoShape::Box, {1, 2, 3}, "", "", {0, 0, 0, 0, 0, 0}},
    {R"("shape": {"cylinder": [1.5, 2]}, "place": [1, 2, 3])",
     QORGeoShape::Cylinder,
     {1.5, 2, 0},
     "",
     "",
     {1, 2, 3, 0, 0, 0}},
    {R"("shape": {"sphere": [4]}, "place": [1, 2, 3, 10, 20, 30])",
     QORGeoShape::Sphere,
     {4, 0, 0},
     "",
     "",
     {1, 2, 3, 10, 20, 30}},
    {R"("shape": {"step": "parts/a.stp"})", QORGeoShape::StepFile, {0, 0, 0}, "@/parts/a.stp", "", {0, 0, 0, 0, 0, 0}},
    {R"("shape": {"step": "/abs/b.stp", "part": "B"})",
     QORGeoShape::StepFile,
     {0, 0, 0},
     "/abs/b.stp",
     "B",
     {0, 0, 0, 0, 0, 0}},
};

TEST(Items, ShowTheirShapeAndPlace) {
    for (const ShapeCase& test : kShapes) {
        const std::string path = plantext::makeFile(
            "shape.plan.json",
            std::string(R"({"version": 1, "items": [{"id": "i", "kind": "item", )") + test.item + "}]}");
        const auto plan = planner::readPlan(path).plan;
        ASSERT_TRUE(plan) << test.item;
        const QORI3DGeoVisu_var visible(QORISPPItem_var(plan->find("i")));
        ASSERT_TRUE(visible) << test.item;
        QORGeoShape shape;
        QORGeoPlace place;
        EXPECT_EQ(visible->GetShape(shape), QOR_OK);
        EXPECT_EQ(visible->GetPlace(place), QOR_OK);
        EXPECT_EQ(shape.kind, test.kind) << test.item;
        EXPECT_EQ(std::vector<double>(shape.sizes, shape.sizes + 3), test.sizes) << test.item;
        std::string file = test.file;
        if (!file.empty() && file[0] == '@') {
            file.replace(0, 1, std::filesystem::path(path).parent_path().string());
        }
        EXPECT_EQ(std::string(shape.file), file);
        EXPECT_EQ(std::string(shape.part), test.part);
        std::vector<double> numbers(place.moved, place.moved + 3);
        numbers.insert(numbers.end(), place.turned, place.turned + 3);
        EXPECT_EQ(numbers, test.place) << test.item;
    }
}

TEST(Items, CanBeSeenWhileTheyHaveAShape) {
    Session s(kWorld);
    EXPECT_FALSE(QORI3DGeoVisu_var(&s.item("part")));
    const QORI3DGeoVisu_var visible(&s.item("jig"));
    ASSERT_TRUE(visible);
    s.editor().setShape(s.item("jig"), std::nullopt);
    EXPECT_FALSE(QORI3DGeoVisu_var(&s.item("jig")));
    QORGeoShape shape;
    shape.kind = QORGeoShape::Sphere;
    EXPECT_LT(visible->GetShape(shape), 0) << "a handle from before";
    EXPECT_EQ(shape.kind, QORGeoShape::Sphere);
    s.editor().undo();
    EXPECT_EQ(visible->GetShape(shape), QOR_OK);
    EXPECT_EQ(shape.kind, QORGeoShape::Box);
}

} // namespace
