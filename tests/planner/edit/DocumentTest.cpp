// The plan as a document of the platform, its root, and items that can be seen.

#include "planner/PlanText.h"
#include "planner/edit/EditSession.h"

#include "QORPlatform/frame/QORInit.h"
#include "QORPlatform/visualization/QORI3DGeoVisu.h"
#include "VXMBomInfrastructure/model/QORISPPActivityModificationEvents.h"
#include "VXMBomInfrastructure/model/QORISPPActivityRoot.h"
#include "VXMBomInfrastructure/model/QORISPPProcessContainer.h"
#include "planner/file/PlanReader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

using editing::kWorld;
using editing::Session;

namespace {

TEST(Document, LeadsToTheRootActivityAsLongAsItsContainerIsThere) {
    QORBaseUnknown_var container;
    {
        Session s(kWorld);
        EXPECT_EQ(s.document().IsAKindOf("QORProcess"), 1);
        const QORInit_var init(&s.document());
        ASSERT_TRUE(init);
        container = QORBaseUnknown_var::Adopt(init->GetRootContainer("QORISPPProcessContainer"));
        EXPECT_EQ(init->GetRootContainer("QORISPPItem"), nullptr);
        EXPECT_EQ(init->GetRootContainer(nullptr), nullptr);
    }
    const std::unique_ptr<QORListValQORBaseUnknown_var> processes(
        QORISPPProcessContainer_var(container)->GetAllProcess());
    ASSERT_EQ(processes->Size(), 1);
    EXPECT_TRUE(QORISPPActivityRoot_var((*processes)[1]));
    EXPECT_TRUE(QORISPPActivityModificationEvents_var((*processes)[1]));
    EXPECT_EQ(planner::ModelObject::behind((*processes)[1])->id(), "line");
}

/// What an item shows: its kind and sizes, file and part; its place.
std::string looksOf(QORI3DGeoVisu& visible) {
    QORGeoShape shape;
    QORGeoPlace place;
    EXPECT_EQ(visible.GetShape(shape), QOR_OK);
    EXPECT_EQ(visible.GetPlace(place), QOR_OK);
    std::ostringstream text;
    text << "kind " << shape.kind << " of";
    for (const double size : shape.sizes) {
        text << ' ' << size;
    }
    text << std::string(shape.file) << '#' << std::string(shape.part) << " at";
    for (const double* numbers : {place.moved, place.turned}) {
        text << ' ' << numbers[0] << ' ' << numbers[1] << ' ' << numbers[2];
    }
    return text.str();
}

TEST(Items, ShowTheirShapeAndPlace) {
    const std::string folder = std::filesystem::path(plantext::makeFile("shape.plan.json", "")).parent_path().string();
    const std::pair<const char*, std::string> cases[] = {
        {R"("shape": {"box": [1, 2, 3]})", "kind 1 of 1 2 3# at 0 0 0 0 0 0"},
        {R"("shape": {"cylinder": [1.5, 2]}, "place": [1, 2, 3])", "kind 2 of 1.5 2 0# at 1 2 3 0 0 0"},
        {R"("shape": {"sphere": [4]}, "place": [1, 2, 3, 10, 20, 30])", "kind 3 of 4 0 0# at 1 2 3 10 20 30"},
        {R"("shape": {"step": "parts/a.stp"})", "kind 4 of 0 0 0" + folder + "/parts/a.stp# at 0 0 0 0 0 0"},
        {R"("shape": {"step": "/b.stp", "part": "B"})", "kind 4 of 0 0 0/b.stp#B at 0 0 0 0 0 0"},
    };
    for (const auto& [item, looks] : cases) {
        const std::string text = R"({"version": 1, "items": [{"id": "i", "kind": "item", )";
        const auto plan = planner::readPlan(plantext::makeFile("shape.plan.json", text + item + "}]}")).plan;
        ASSERT_TRUE(plan) << item;
        const QORI3DGeoVisu_var visible(QORISPPItem_var(plan->find("i")));
        ASSERT_TRUE(visible) << item;
        EXPECT_EQ(looksOf(*visible.Get()), looks);
    }
}

TEST(Items, CanBeSeenWithAShapeAndByWhoShowsThemStill) {
    Session s(kWorld);
    s.editor().setPlace(s.item("part"), planner::Place{{1, 2, 3}});
    s.editor().setShape(s.item("part"), planner::Shape{planner::Shape::Form::Sphere, {2}, "", {}, ""});
    EXPECT_TRUE(QORI3DGeoVisu_var(&s.item("part")));
    s.editor().undo();
    EXPECT_FALSE(QORI3DGeoVisu_var(&s.item("part"))) << "undo is exact";
    const QORI3DGeoVisu_var visible(&s.item("jig"));
    s.editor().setShape(s.item("jig"), std::nullopt);
    EXPECT_TRUE(QORI3DGeoVisu_var(&s.item("jig"))) << "a view that shows it has to end that";
    QORGeoShape shape;
    shape.kind = QORGeoShape::Sphere;
    EXPECT_LT(visible->GetShape(shape), 0);
    EXPECT_EQ(shape.kind, QORGeoShape::Sphere);
    s.editor().undo();
    EXPECT_EQ(looksOf(*visible.Get()), "kind 1 of 1 2 3# at 4 5 6 0 0 0");
}

} // namespace
