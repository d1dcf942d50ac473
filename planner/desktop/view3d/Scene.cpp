#include "planner/desktop/view3d/Scene.h"

#include "planner/desktop/view3d/Looks.h"

#include "planner/model/ModelObject.h"

#include "QORPlatform/visualization/QORVisManager.h"
#include "QORPlatform/visualization/QORXSO.h"

#include <Prs3d_Drawer.hxx>
#include <Standard_Failure.hxx>
#include <TopLoc_Location.hxx>
#include <V3d_AmbientLight.hxx>
#include <V3d_DirectionalLight.hxx>

#include <utility>

namespace planner::desktop {

namespace {

constexpr float kSky = 0.5F; // of the light that goes with the camera

QString faultOf(QORBaseUnknown& object, const std::string& reason) {
    const ModelObject* const named = ModelObject::behind(QORBaseUnknown_var(&object));
    return QString::fromStdString((named ? named->name() + ": " : "") + reason);
}

} // namespace

Scene::Scene(std::shared_ptr<Graphics> graphics, QOR3DViewpoint& viewpoint)
    : graphics_(std::move(graphics)), viewpoint_(viewpoint), viewer_(new V3d_Viewer(graphics_->driver())) {
    viewer_->SetDefaultLights();
    viewer_->AddLight(new V3d_AmbientLight(Quantity_NOC_GRAY40)); // so that what stands askew isn't dull
    const Handle(V3d_DirectionalLight) sky = new V3d_DirectionalLight(V3d_Zneg);
    sky->SetIntensity(kSky);
    viewer_->AddLight(sky);
    viewer_->SetLightOn();
    context_ = new AIS_InteractiveContext(viewer_);
    context_->SetAutomaticHilight(false); // the selection sets say what is lit
    context_->SetDisplayMode(AIS_Shaded, false);
    dressContext(*context_);
    view_ = viewer_->CreateView();
    view_->SetImmediateUpdate(false);
    dressView(*view_);
    styles_[static_cast<int>(Light::Picked)] = lightOfPicked();
    styles_[static_cast<int>(Light::Hovered)] = lightOfHovered();
    shine_ = lightOfShine();
    resize(QSize(1, 1));
    setCamera(viewpoint_.GetCamera());
}

void Scene::drop(QORBaseUnknown& object) {
    stale_.erase(&object);
    lit_.erase(&object);
    const auto place = shown_.find(&object);
    if (place != shown_.end()) {
        erase(place->second);
        shown_.erase(place);
    }
    isSelectionStale_ = true;
}

void Scene::follow() {
    const auto stale = std::exchange(stale_, {});
    for (QORBaseUnknown* const object : stale) {
        Shown& shown = shown_[object];
        const long revision = QORVisManager::GetVisManager()->GetRevision(object);
        if (shown.revision == revision) {
            continue;
        }
        shown.revision = revision;
        shown.fault.clear();
        try {
            make(*object, shown);
        } catch (const Standard_Failure& failure) {
            erase(shown);
            shown.fault = faultOf(*object, reasonOf(failure));
        } catch (const std::exception& failure) {
            erase(shown);
            shown.fault = faultOf(*object, failure.what());
        }
        isSelectionStale_ = true;
    }
    if (!stale.empty() || isSelectionStale_) {
        dropUnused();
    }
    if (std::exchange(isSelectionStale_, false)) {
        lightSets();
    }
}

/// What only moves keeps what was made for it.
void Scene::make(QORBaseUnknown& object, Shown& shown) {
    const QORI3DGeoVisu_var visible(&object);
    QORGeoShape shape;
    QORGeoPlace where;
    if (!visible || visible->GetShape(shape) < 0 || shape.kind == QORGeoShape::None) {
        erase(shown);
        return;
    }
    visible->GetPlace(where);
    const std::string prototype = prototypeOf(object, shape);
    if (!shown.object.IsNull() && shown.prototype != prototype) {
        erase(shown);
    }
    shown.prototype = prototype;
    place(shown, transformationOf(where));
    objects_[shown.object.get()] = &object;
}

void Scene::place(Shown& shown, const gp_Trsf& where) {
    if (!shown.object.IsNull()) {
        context_->SetLocation(shown.object, TopLoc_Location(where));
        if (!shown.shine.IsNull()) {
            context_->SetLocation(shown.shine, TopLoc_Location(where));
        }
        return;
    }
    Prototype& prototype = prototypes_.at(shown.prototype);
    shown.object = new AIS_ConnectedInteractive();
    shown.object->Connect(prototype.object, where);
    ++prototype.users;
    context_->Display(shown.object, context_->DisplayMode(), 0, false);
}

void Scene::erase(Shown& shown) {
    if (shown.object.IsNull()) {
        return;
    }
    shine(shown, false);
    objects_.erase(shown.object.get());
    --prototypes_.at(shown.prototype).users;
    context_->Remove(shown.object, false);
    shown.object.Nullify();
    shown.light = Light::None;
}

/// Key of the prototype, which is there afterwards.
std::string Scene::prototypeOf(QORBaseUnknown& object, const QORGeoShape& shape) {
    const Look look = lookOf(object);
    std::string key = std::to_string(static_cast<int>(look)) + ShapeStore::keyOf(shape);
    if (!prototypes_.contains(key)) {
        const auto solid = graphics_->shapes().solid(shape);
        const bool isOfFile = shape.kind == QORGeoShape::StepFile; // whose folder and time are no matter of colour
        prototypes_[key] = {dressed(*solid, look, isOfFile ? static_cast<std::string>(shape.part) : key), solid, 0};
    }
    return key;
}

void Scene::dropUnused() {
    std::erase_if(prototypes_, [](const auto& each) { return each.second.users == 0; });
}

QStringList Scene::faults() const {
    QStringList faults;
    for (const auto& [object, shown] : shown_) {
        if (!shown.fault.isEmpty()) {
            faults << shown.fault;
        }
    }
    faults.sort();
    return faults;
}

/// Costs what is in the sets, and was.
void Scene::lightSets() {
    const auto before = std::exchange(lit_, {});
    std::unordered_map<QORBaseUnknown*, Light> lights;
    const auto* const manager = QORVisManager::GetVisManager();
    const auto add = [&](const QORXSO* set, Light kind) {
        for (int position = 1; set && position <= set->GetSize(); ++position) {
            lights[set->GetElement(position).Get()] = kind;
        }
    };
    add(manager->GetPSO(viewpoint_), Light::Picked);
    add(manager->GetHSO(viewpoint_), Light::Hovered);
    for (QORBaseUnknown* const object : before) {
        if (!lights.contains(object)) {
            light(shown_.at(object), Light::None);
        }
    }
    for (const auto& [object, kind] : lights) {
        const auto shown = shown_.find(object);
        if (shown != shown_.end()) {
            lit_.insert(object);
            light(shown->second, kind);
        }
    }
}

void Scene::light(Shown& shown, Light light) {
    if (shown.object.IsNull() || std::exchange(shown.light, light) == light) {
        return;
    }
    context_->Unhilight(shown.object, false);
    if (light != Light::None) {
        context_->HilightWithColor(shown.object, styles_[static_cast<int>(light)], false);
    }
    shine(shown, light == Light::Picked);
}

/// What was chosen in a bill may stand behind a panel. An object that itself stood in front would be the one that the
/// pointer finds there.
void Scene::shine(Shown& shown, bool isOn) {
    if (!shown.shine.IsNull()) {
        context_->Remove(shown.shine, false);
        shown.shine.Nullify();
    }
    if (isOn) {
        constexpr int kNotSelectable = -1;
        shown.shine = new AIS_ConnectedInteractive();
        shown.shine->Connect(prototypes_.at(shown.prototype).object, shown.object->LocalTransformation());
        shown.shine->SetZLayer(Graphic3d_ZLayerId_Topmost);
        context_->Display(shown.shine, AIS_Shaded, kNotSelectable, false);
        context_->HilightWithColor(shown.shine, shine_, false);
    }
}

QORBaseUnknown* Scene::objectAt(const QPoint& position) {
    follow();
    context_->MoveTo(position.x(), position.y(), view_, false);
    if (!context_->HasDetected()) {
        return nullptr;
    }
    const auto place = objects_.find(context_->DetectedInteractive().get());
    return place == objects_.end() ? nullptr : place->second;
}

std::vector<QORBaseUnknown*> Scene::objectsIn(const QRect& frame) {
    follow();
    context_->SelectRectangle(Graphic3d_Vec2i(frame.left(), frame.top()),
                              Graphic3d_Vec2i(frame.right(), frame.bottom()), view_, AIS_SelectionScheme_Replace);
    std::vector<QORBaseUnknown*> found;
    for (context_->InitSelected(); context_->MoreSelected(); context_->NextSelected()) {
        const auto place = objects_.find(context_->SelectedInteractive().get());
        if (place != objects_.end()) {
            found.push_back(place->second);
        }
    }
    context_->ClearSelected(false);
    return found;
}

void Scene::setWireframe(bool isWireframe) {
    const int mode = isWireframe ? AIS_WireFrame : AIS_Shaded;
    context_->SetDisplayMode(mode, false);
    for (const auto& [object, shown] : shown_) {
        if (!shown.object.IsNull()) {
            context_->SetDisplayMode(shown.object, mode, false);
        }
    }
}

} // namespace planner::desktop
