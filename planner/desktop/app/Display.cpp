#include "planner/desktop/app/Display.h"

#include <QDir>
#include <QLibraryInfo>

#include <memory>

#include <xcb/xcb.h>

namespace planner::desktop {

namespace {

bool hasPlugin(const QString& platform) {
    const QDir folder(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
    return !folder.entryList({"libq" + platform + "*"}, QDir::Files).isEmpty();
}

/// The connection stays open: an X server that serves nobody else starts anew when its last client leaves, and would
/// refuse the application meanwhile.
bool reachesXServer() {
    static const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(xcb_connect(nullptr, nullptr),
                                                                                         &xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0;
}

/// Whether the platform, a name with options behind a colon, can show a window.
bool isUsable(const QString& platform) {
    const QString name = platform.section(':', 0, 0);
    if (!hasPlugin(name)) {
        return false;
    }
    if (name.startsWith("wayland")) {
        return qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    }
    return name != "xcb" || reachesXServer();
}

} // namespace

std::optional<std::string> displayProblem() {
    const QString asked = qEnvironmentVariable("QT_QPA_PLATFORM", "wayland;xcb");
    for (const QString& platform : asked.split(';')) {
        if (isUsable(platform)) {
            return std::nullopt;
        }
    }
    const QString display = qEnvironmentVariable("DISPLAY");
    std::string reason = "no display: ";
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        reason += "QT_QPA_PLATFORM asks for \"" + asked.toStdString() + "\", which can't show a window here";
    } else if (display.isEmpty()) {
        reason += "DISPLAY is not set";
    } else {
        reason += "the X server \"" + display.toStdString() + "\" of DISPLAY doesn't answer";
    }
    return reason + "; start it in a session with windows, or under xvfb-run";
}

} // namespace planner::desktop
