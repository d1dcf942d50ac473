#include "planner/desktop/view3d/Looks.h"

#include "planner/model/Item.h"

#include <AIS_ColoredShape.hxx>
#include <Prs3d_LineAspect.hxx>

#include <cmath>
#include <cstdint>
#include <iterator>

namespace planner::desktop {

namespace {

Quantity_Color rgb(std::uint32_t code) {
    const auto part = [&](int shift) {
        return static_cast<double>((code >> shift) & 0xFFU) / 255;
    };
    return {part(16), part(8), part(0), Quantity_TOC_sRGB};
}

// Of like strength, so that no part shouts; light and fasteners stand out from each of them.
constexpr std::uint32_t kParts[] = {0x7C98B3, 0xB8B09A, 0x86A894, 0xA79BB5, 0x9DB4C0, 0xC2A78D, 0x8FA3A8, 0xAEBB8F};
constexpr std::uint32_t kFastener = 0xB23A48;
constexpr std::uint32_t kTool = 0x9AA0A6;
constexpr std::uint32_t kEdge = 0x30363D;
constexpr std::uint32_t kPicked = 0xFF9500;
constexpr std::uint32_t kHovered = 0x35C4FF;
constexpr float kToolTransparency = 0.75F;
constexpr float kShineTransparency = 0.5F;

/// The same on every machine.
std::uint32_t hashOf(const std::string& text) {
    std::uint32_t hash = 2166136261U;
    for (const char each : text) {
        hash = (hash ^ static_cast<unsigned char>(each)) * 16777619U;
    }
    return hash ^ (hash >> 15U);
}

Handle(Prs3d_LineAspect) edges() {
    return new Prs3d_LineAspect(rgb(kEdge), Aspect_TOL_SOLID, 1);
}

Handle(Prs3d_Drawer) filled(std::uint32_t colour) {
    Handle(Prs3d_Drawer) style = new Prs3d_Drawer();
    style->SetMethod(Aspect_TOHM_COLOR);
    style->SetColor(rgb(colour));
    style->SetDisplayMode(AIS_Shaded);
    return style;
}

} // namespace

Look lookOf(QORBaseUnknown& object) {
    const ModelObject* const known = ModelObject::behind(QORBaseUnknown_var(&object));
    if (!known || known->sort() != Sort::Item) {
        return Look::Part;
    }
    switch (static_cast<const Item*>(known)->kind()) {
    case ItemKind::Fastener:
        return Look::Fastener;
    case ItemKind::Item:
        return Look::Tool;
    default:
        return Look::Part;
    }
}

Handle(AIS_InteractiveObject) dressed(const Solid& solid, Look look, const std::string& seed) {
    const Handle(AIS_ColoredShape) shape = new AIS_ColoredShape(solid.shape);
    shape->SetMaterial(Graphic3d_NOM_PLASTER);
    shape->SetColor(rgb(look == Look::Fastener ? kFastener
                        : look == Look::Tool   ? kTool
                                               : kParts[hashOf(seed) % std::size(kParts)]));
    if (look == Look::Tool) {
        shape->SetTransparency(kToolTransparency);
    }
    shape->Attributes()->SetFaceBoundaryAspect(edges()); // a colour for the shape is one for its edges, too
    for (const auto& [piece, colour] : solid.colours) {
        shape->SetCustomColor(piece, colour);
        shape->CustomAspects(piece)->SetFaceBoundaryAspect(edges());
    }
    return Handle(AIS_InteractiveObject)(shape);
}

void dressContext(AIS_InteractiveContext& context) {
    context.DefaultDrawer()->SetFaceBoundaryDraw(true);
}

void dressView(V3d_View& view) {
    view.ChangeRenderingParams().NbMsaaSamples = 4;
}

void setFineness(V3d_View& view, double ratio) {
    constexpr double kAxes = 0.08;
    view.ChangeRenderingParams().Resolution =
        static_cast<unsigned>(std::lround(Graphic3d_RenderingParams::THE_DEFAULT_RESOLUTION * ratio));
    view.TriedronDisplay(Aspect_TOTP_LEFT_LOWER, Quantity_NOC_GRAY50, kAxes * ratio, V3d_ZBUFFER);
}

void setBackground(V3d_View& view, bool isDark) {
    view.SetBgGradientColors(rgb(isDark ? 0x3A4048 : 0xF7F9FB), rgb(isDark ? 0x1D2126 : 0xC9D3DE), Aspect_GFM_VER,
                             false);
}

Handle(Prs3d_Drawer) lightOfPicked() {
    return filled(kPicked);
}

Handle(Prs3d_Drawer) lightOfShine() {
    Handle(Prs3d_Drawer) style = filled(kPicked);
    style->SetTransparency(kShineTransparency);
    return style;
}

Handle(Prs3d_Drawer) lightOfHovered() {
    return filled(kHovered);
}

} // namespace planner::desktop
