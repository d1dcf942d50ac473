// The camera of a scene, and the picture that it takes.

#include "planner/desktop/view3d/Looks.h"
#include "planner/desktop/view3d/Scene.h"

#include <Image_PixMap.hxx>
#include <V3d_ImageDumpOptions.hxx>
#include <Xw_Window.hxx>
#include <gp_Ax1.hxx>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <utility>

namespace planner::desktop {

namespace {

constexpr double kFitMargin = 0.06;
constexpr double kOpening = 30; ///< of a camera in perspective, in degrees

double heightOf(const Graphic3d_Camera& camera) {
    return camera.ViewDimensions().Y();
}

/// The camera measures the shorter edge of the picture.
void setHeight(Graphic3d_Camera& camera, double height) {
    camera.SetScale(camera.Aspect() >= 1 ? height : height * camera.Aspect());
}

void copy(const gp_XYZ& from, double (&to)[3]) {
    to[0] = from.X();
    to[1] = from.Y();
    to[2] = from.Z();
}

gp_XYZ vectorOf(const double (&numbers)[3]) {
    return {numbers[0], numbers[1], numbers[2]};
}

} // namespace

void Scene::resize(const QSize& size, double ratio) {
    if (std::exchange(ratio_, ratio) != ratio) {
        setFineness(*view_, ratio);
    }
    if (size == size_) {
        return;
    }
    size_ = size;
    const Handle(Xw_Window) window =
        new Xw_Window(graphics_->display(), "planner-desktop", 0, 0, size.width(), size.height());
    window->SetVirtual(true); // never on the screen: the picture is read back
    view_->SetWindow(window);
}

QImage Scene::draw(bool isDark) {
    setBackground(*view_, isDark);
    QImage image(size_, QImage::Format_RGBA8888);
    Image_PixMap pixels;
    pixels.InitWrapper(Image_Format_RGBA, image.bits(), static_cast<Standard_Size>(size_.width()),
                       static_cast<Standard_Size>(size_.height()), static_cast<Standard_Size>(image.bytesPerLine()));
    pixels.SetTopDown(true);
    V3d_ImageDumpOptions options;
    options.Width = 0;
    options.Height = 0;
    options.BufferType = Graphic3d_BT_RGBA;
    view_->AutoZFit(); // picking goes by the depth of the camera, which the picture alone doesn't set
    if (!view_->ToPixMap(pixels, options)) {
        throw std::runtime_error("OpenGL gave no picture");
    }
    return image.convertToFormat(QImage::Format_RGB32);
}

QORCamera Scene::camera() const {
    const Graphic3d_Camera& from = *view_->Camera();
    QORCamera camera;
    copy(from.Eye().XYZ(), camera.eye);
    copy(from.Center().XYZ(), camera.target);
    copy(from.Up().XYZ(), camera.up);
    camera.height = heightOf(from);
    camera.isPerspective = !from.IsOrthographic();
    return camera;
}

void Scene::setCamera(const QORCamera& camera) {
    const gp_XYZ way = vectorOf(camera.target) - vectorOf(camera.eye);
    const gp_XYZ up = vectorOf(camera.up);
    if (way.CrossMagnitude(up) <= gp::Resolution() || !(camera.height > 0)) {
        return; // looks nowhere
    }
    Graphic3d_Camera& to = *view_->Camera();
    to.SetProjectionType(camera.isPerspective ? Graphic3d_Camera::Projection_Perspective
                                              : Graphic3d_Camera::Projection_Orthographic);
    to.SetUp(gp_Dir(up));
    to.SetEyeAndCenter(vectorOf(camera.eye), vectorOf(camera.target));
    to.OrthogonalizeUp();
    if (camera.isPerspective) {
        const double opening = 2 * std::atan(camera.height / 2 / way.Modulus()) * 180 / std::numbers::pi;
        to.SetFOVy(std::clamp(opening, 1.0, 170.0));
    } else {
        setHeight(to, camera.height);
    }
}

void Scene::fitAll() {
    follow();
    view_->FitAll(kFitMargin, false);
}

void Scene::look(V3d_TypeOfOrientation direction) {
    view_->SetProj(direction);
    fitAll();
}

void Scene::lookAsAtFirst() {
    QORCamera first;
    first.isPerspective = camera().isPerspective;
    setCamera(first);
    fitAll();
}

void Scene::orbit(double right, double down) {
    Graphic3d_Camera& camera = *view_->Camera();
    const gp_Ax1 upright(camera.Center(), gp::DZ());
    gp_Trsf turn;
    turn.SetRotation(upright, -right);
    camera.Transform(turn);
    // Over the poles the picture would stand on its head.
    const double slope = camera.Direction().Angle(gp::DZ());
    const double turned = std::clamp(slope + down, 0.0, std::numbers::pi);
    gp_Trsf tilt;
    tilt.SetRotation(gp_Ax1(camera.Center(), camera.Direction().Crossed(camera.Up())), slope - turned);
    camera.Transform(tilt);
}

void Scene::pan(const QPoint& pixels) {
    view_->Pan(pixels.x(), -pixels.y());
}

void Scene::zoom(const QPoint& position, double factor) {
    constexpr double kPixelsPerDouble = 100; // of the view's own measure
    const int way = static_cast<int>(std::lround(kPixelsPerDouble * (std::max(factor, 1 / factor) - 1)));
    view_->StartZoomAtPoint(position.x(), position.y());
    view_->ZoomAtPoint(position.x(), position.y(), position.x() + (factor >= 1 ? way : -way), position.y());
}

/// What is in the middle of the picture keeps its size.
void Scene::setPerspective(bool isPerspective) {
    Graphic3d_Camera& camera = *view_->Camera();
    const double height = heightOf(camera);
    camera.SetProjectionType(isPerspective ? Graphic3d_Camera::Projection_Perspective
                                           : Graphic3d_Camera::Projection_Orthographic);
    if (isPerspective) {
        camera.SetFOVy(kOpening);
    }
    setHeight(camera, height);
}

} // namespace planner::desktop
