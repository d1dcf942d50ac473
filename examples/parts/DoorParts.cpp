// Writes the pressed and cut parts of the door line as a STEP file: door-parts FILE
//
// Millimetres; x runs from the hinges to the latch, y from outside to inside, z upwards. All stand where they are in
// the door. The same file comes out each time, but for the order of its colours.

#include <APIHeaderSection_MakeHeader.hxx>
#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepFilletAPI_MakeFillet2d.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_PrinterOStream.hxx>
#include <Quantity_Color.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <Standard_Failure.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <cstdio>
#include <initializer_list>

namespace {

struct Corner {
    double x;
    double z;
};
using Outline = std::initializer_list<Corner>;

/// From one y to another, in millimetres.
struct Depth {
    double from;
    double to;
};

TopoDS_Shape plate(Outline outline, double rounding, Depth depth) {
    BRepBuilderAPI_MakePolygon polygon;
    for (const Corner& corner : outline) {
        polygon.Add(gp_Pnt(corner.x, depth.from, corner.z));
    }
    polygon.Close();
    const TopoDS_Face sharp = BRepBuilderAPI_MakeFace(polygon.Wire(), true).Face();
    BRepFilletAPI_MakeFillet2d rounded(sharp);
    TopTools_IndexedMapOfShape corners;
    TopExp::MapShapes(sharp, TopAbs_VERTEX, corners);
    for (int corner = 1; corner <= corners.Extent(); ++corner) {
        rounded.AddFillet(TopoDS::Vertex(corners(corner)), rounding);
    }
    return BRepPrimAPI_MakePrism(rounded.Shape(), gp_Vec(0, depth.to - depth.from, 0));
}

TopoDS_Shape roundHole(double x, double z, double radius) {
    constexpr double kFar = 500;
    return BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(x, -kFar, z), gp::DY()), radius, 2 * kFar).Shape();
}

TopoDS_Shape without(TopoDS_Shape whole, std::initializer_list<TopoDS_Shape> holes) {
    for (const TopoDS_Shape& hole : holes) {
        whole = BRepAlgoAPI_Cut(whole, hole).Shape();
    }
    return whole;
}

constexpr Depth kThrough{-200, 200};
constexpr double kWide = 1100;
constexpr double kWaist = 720;

/// The skin, which bulges outwards between its lower edge and the waist.
TopoDS_Shape outerPanel() {
    constexpr double kBulge = 34;
    constexpr double kThick = 3;
    const auto arc = [](double y) {
        const gp_Pnt middle(0, y - kBulge, kWaist / 2);
        return BRepBuilderAPI_MakeEdge(GC_MakeArcOfCircle(gp_Pnt(0, y, 0), middle, gp_Pnt(0, y, kWaist)).Value())
            .Edge();
    };
    const auto rim = [](double z) {
        return BRepBuilderAPI_MakeEdge(gp_Pnt(0, 0, z), gp_Pnt(0, kThick, z)).Edge();
    };
    const TopoDS_Wire profile = BRepBuilderAPI_MakeWire(arc(0), rim(kWaist), arc(kThick), rim(0)).Wire();
    const TopoDS_Shape bulged = BRepPrimAPI_MakePrism(BRepBuilderAPI_MakeFace(profile).Face(), gp_Vec(kWide, 0, 0));
    const TopoDS_Shape blank = plate({{0, 0}, {kWide, 0}, {kWide, kWaist}, {0, kWaist}}, 40, kThrough);
    return BRepAlgoAPI_Common(bulged, blank).Shape();
}

/// A tray below the waist, with holes for hands, for the window's drive and for the speaker, and the frame of the
/// window above.
TopoDS_Shape innerPanel() {
    const TopoDS_Shape blank =
        plate({{10, 10}, {1090, 10}, {1090, kWaist}, {1010, 1130}, {470, 1130}, {10, kWaist}}, 40, {3, 40});
    return without(blank,
                   {plate({{34, 34}, {1066, 34}, {1066, 700}, {34, 700}}, 40, {-10, 36}),
                    plate({{110, 745}, {1022, 745}, {958, 1085}, {492, 1085}}, 24, kThrough),
                    plate({{430, 200}, {640, 200}, {640, 560}, {430, 560}}, 50, kThrough),
                    plate({{700, 200}, {900, 200}, {900, 560}, {700, 560}}, 50, kThrough), roundHole(260, 170, 78)});
}

/// Its edges reach into the frame. The file has it lying at 0 and lifts it into its place.
constexpr double kSill = 738;
TopoDS_Shape windowGlass() {
    return plate({{104, 0}, {1032, 0}, {966, 354}, {488, 354}}, 20, {18, 22});
}

/// Lies in the opening of the window frame, all round.
TopoDS_Shape glassRun() {
    const TopoDS_Shape blank = plate({{110, 745}, {1022, 745}, {958, 1085}, {492, 1085}}, 24, {12, 28});
    return without(blank, {plate({{142, 757}, {1007, 757}, {948, 1073}, {497, 1073}}, 16, kThrough)});
}

TopoDS_Shape doorSeal() {
    const TopoDS_Shape blank =
        plate({{16, 16}, {1084, 16}, {1084, 720}, {1005, 1124}, {472, 1124}, {16, 717}}, 36, {40, 50});
    return without(blank,
                   {plate({{30, 30}, {1070, 30}, {1070, 718}, {993, 1110}, {478, 1110}, {30, 711}}, 26, kThrough)});
}

/// Open for its insert and before the speaker, with the arm rest below the opening.
TopoDS_Shape trimPanel() {
    const TopoDS_Shape blank = plate({{112, 60}, {990, 60}, {990, 640}, {112, 670}}, 50, {58, 80});
    const TopoDS_Shape rest = plate({{330, 250}, {930, 250}, {910, 310}, {330, 310}}, 24, {70, 135});
    return BRepAlgoAPI_Fuse(without(blank, {plate({{190, 300}, {910, 300}, {910, 580}, {190, 580}}, 50, kThrough),
                                            roundHole(260, 170, 68)}),
                            rest)
        .Shape();
}

struct Part {
    const char* name;
    TopoDS_Shape shape;
    Quantity_Color colour;
    double lifted = 0; ///< by the file
};

bool write(const std::initializer_list<Part>& parts, const char* path) {
    Handle(TDocStd_Document) document;
    XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", document);
    const Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    const TDF_Label door = shapes->NewShape();
    TDataStd_Name::Set(door, "Door");
    for (const Part& part : parts) {
        const TDF_Label label = shapes->AddShape(part.shape, false);
        TDataStd_Name::Set(label, part.name);
        XCAFDoc_DocumentTool::ColorTool(document->Main())->SetColor(label, part.colour, XCAFDoc_ColorSurf);
        gp_Trsf place;
        place.SetTranslation(gp_Vec(0, 0, part.lifted));
        TDataStd_Name::Set(shapes->AddComponent(door, label, place), part.name);
    }
    shapes->UpdateAssemblies();
    STEPCAFControl_Writer writer;
    Interface_Static::SetCVal("write.step.unit", "MM");
    Interface_Static::SetIVal("write.surfacecurve.mode", 0); // half of the file otherwise
    if (!writer.Transfer(document, STEPControl_AsIs)) {
        return false;
    }
    APIHeaderSection_MakeHeader header(writer.ChangeWriter().Model());
    header.SetName(new TCollection_HAsciiString("Parts of a door"));
    header.SetTimeStamp(new TCollection_HAsciiString("2026-01-01T00:00:00"));
    return writer.Write(path) == IFSelect_RetDone;
}

Quantity_Color rgb(double red, double green, double blue) {
    return {red, green, blue, Quantity_TOC_sRGB};
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: door-parts FILE\n", stderr);
        return 2;
    }
    Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_PrinterOStream));
    try {
        if (write({{"Outer panel", outerPanel(), rgb(0.30, 0.47, 0.64)},
                   {"Inner panel", innerPanel(), rgb(0.71, 0.75, 0.79)},
                   {"Window glass", windowGlass(), rgb(0.70, 0.87, 0.92), kSill},
                   {"Glass run channel", glassRun(), rgb(0.25, 0.27, 0.30)},
                   {"Door seal", doorSeal(), rgb(0.25, 0.27, 0.30)},
                   {"Trim panel", trimPanel(), rgb(0.80, 0.71, 0.58)}},
                  argv[1])) {
            return 0;
        }
        std::fprintf(stderr, "door-parts: %s can't be written\n", argv[1]);
    } catch (const Standard_Failure& failure) {
        std::fprintf(stderr, "door-parts: %s\n", failure.GetMessageString());
    }
    return 2;
}
