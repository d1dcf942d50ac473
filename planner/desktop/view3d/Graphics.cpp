// Qt stands before the headers of OpenGL, whose macros would reach into it.
#include <QGuiApplication>

#include "planner/desktop/view3d/Graphics.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_PrinterOStream.hxx>
#include <OpenGl_GraphicDriver.hxx>
#include <Standard_Failure.hxx>

#include <stdexcept>

namespace planner::desktop {

namespace {

/// Qt's connection to the X server where it has one; else that of DISPLAY.
Handle(Aspect_DisplayConnection) openDisplay() {
    if (const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>()) {
        return new Aspect_DisplayConnection(reinterpret_cast<Aspect_XDisplay*>(x11->display()));
    }
    return new Aspect_DisplayConnection();
}

} // namespace

Graphics::Graphics() {
    Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_PrinterOStream)); // standard output is ours
    display_ = openDisplay();
    const Handle(OpenGl_GraphicDriver) driver = new OpenGl_GraphicDriver(display_, false);
    driver->ChangeOptions().ffpEnable = false;
    if (!driver->InitContext()) {
        throw std::runtime_error("OpenGL doesn't start");
    }
    driver_ = driver;
}

std::shared_ptr<Graphics> Graphics::shared() {
    static std::weak_ptr<Graphics> present;
    std::shared_ptr<Graphics> graphics = present.lock();
    if (!graphics) {
        graphics = std::shared_ptr<Graphics>(new Graphics());
        present = graphics;
    }
    return graphics;
}

std::string reasonOf(const Standard_Failure& failure) {
    const std::string message = failure.GetMessageString();
    return message.empty() ? failure.DynamicType()->Name() : message;
}

} // namespace planner::desktop
