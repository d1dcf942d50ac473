// Solids of shapes, without a picture of them.

#include "planner/desktop/view3d/ShapeStore.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>

#include <gtest/gtest.h>

namespace {

using planner::desktop::ShapeStore;

QORGeoShape sized(QORGeoShape::Kind kind, double first, double second = 0, double third = 0) {
    QORGeoShape shape;
    shape.kind = kind;
    shape.sizes[0] = first;
    shape.sizes[1] = second;
    shape.sizes[2] = third;
    return shape;
}

QORGeoShape part(const char* name) {
    QORGeoShape shape;
    shape.kind = QORGeoShape::StepFile;
    shape.file = EXAMPLES "/door-parts.step";
    shape.part = name;
    return shape;
}

struct Case {
    const char* name;
    QORGeoShape shape;
    double from[3]; ///< corners of the box around it, in millimetres
    double to[3];
};

TEST(ShapeTest, EachStandsWhereItsFormSays) {
    const Case cases[] = {
        {"box", sized(QORGeoShape::Box, 3, 4, 5), {0, 0, 0}, {3, 4, 5}},
        {"cylinder", sized(QORGeoShape::Cylinder, 3, 8), {-3, -3, 0}, {3, 3, 8}},
        {"sphere", sized(QORGeoShape::Sphere, 4), {-4, -4, -4}, {4, 4, 4}},
        {"part", part("Outer panel"), {0, -34, 0}, {1100, 3, 720}},
        {"part that its file places", part("Window glass"), {135.20, 18, 738}, {1027.93, 22, 1092}},
        {"assembly", part("Door"), {0, -34, 0}, {1100, 135, 1130}},
        {"whole file", part(""), {0, -34, 0}, {1100, 135, 1130}},
    };
    ShapeStore store;
    for (const Case& each : cases) {
        Bnd_Box box;
        BRepBndLib::AddOptimal(store.solid(each.shape)->shape, box, false);
        double from[3];
        double to[3];
        box.Get(from[0], from[1], from[2], to[0], to[1], to[2]);
        for (int axis = 0; axis < 3; ++axis) {
            EXPECT_NEAR(from[axis], each.from[axis], 0.01) << each.name << axis;
            EXPECT_NEAR(to[axis], each.to[axis], 0.01) << each.name << axis;
        }
    }
}

TEST(ShapeTest, TurnsGoAboutFixedAxesInTheirOrder) {
    QORGeoPlace place;
    place.moved[2] = 5;
    place.turned[0] = 90;
    place.turned[2] = 90;
    gp_Pnt tip(0, 1, 0); // goes up about x, where z leaves it
    tip.Transform(planner::desktop::transformationOf(place));
    EXPECT_LT(tip.Distance(gp_Pnt(0, 0, 6)), 1e-9);
    place.turned[1] = 90;
    tip = gp_Pnt(0, 1, 0);
    tip.Transform(planner::desktop::transformationOf(place));
    EXPECT_LT(tip.Distance(gp_Pnt(0, 1, 5)), 1e-9);
}

TEST(ShapeTest, EqualOnesAreMadeOnce) {
    ShapeStore store;
    const auto box = store.solid(sized(QORGeoShape::Box, 3, 4, 5));
    const auto panel = store.solid(part("Inner panel"));
    EXPECT_EQ(store.solid(sized(QORGeoShape::Box, 3, 4, 5)), box);
    EXPECT_NE(store.solid(sized(QORGeoShape::Box, 3, 5, 4)), box);
    EXPECT_EQ(store.solid(part("Inner panel")), panel);
    EXPECT_NE(store.solid(part("Outer panel")), panel);
    EXPECT_EQ(panel->colours.size(), 1U);
}

} // namespace
