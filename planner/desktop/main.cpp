// The planner as a desktop application.

#include "planner/desktop/app/Display.h"
#include "planner/desktop/app/FileCommands.h"
#include "planner/desktop/app/MainWindow.h"
#include "planner/desktop/app/Options.h"
#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/settings/Preferences.h"
#include "planner/desktop/toolkit/LoopHook.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <cstdio>
#include <exception>
#include <unistd.h>

namespace {

constexpr int kBad = 2;

int complain(const std::string& message) {
    std::fputs(("planner-desktop: " + message + '\n').c_str(), stderr);
    return kBad;
}

/// Runs the event loop until what was put off is done.
void settle() {
    constexpr int kMoment = 100;
    QEventLoop loop;
    QTimer::singleShot(kMoment, &loop, &QEventLoop::quit);
    loop.exec();
}

int run(const planner::desktop::Options& options) {
    planner::desktop::MainWindow window;
    const QStringList faults = window.open(options);
    if (!faults.isEmpty()) {
        const int status = complain(faults.join('\n').toStdString());
        if (options.screenshot || ::isatty(STDERR_FILENO) != 0) {
            return status;
        }
        window.say(faults.join('\n')); // nobody may be reading what we complain of
    }
    window.show();
    if (options.screenshot) {
        settle();
        const bool written = window.grab().save(QString::fromStdString(*options.screenshot), "PNG");
        return written ? 0 : complain(*options.screenshot + " can't be written");
    }
    if (faults.isEmpty()) {
        window.files().offerRecovery();
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const planner::desktop::Options options = planner::desktop::parseOptions(argc, argv);
    if (options.print) {
        return std::fputs(options.print->c_str(), stdout) < 0 ? kBad : 0;
    }
    if (!options.error.empty()) {
        return complain(options.error);
    }
    if (const auto problem = planner::desktop::displayProblem()) {
        return complain(*problem);
    }
    try {
        QApplication app(argc, argv);
        QApplication::setOrganizationName("planner");
        QApplication::setApplicationName("planner-desktop");
        QApplication::setApplicationVersion(PLANNER_VERSION);
        QApplication::setDesktopFileName("planner-desktop");
        QApplication::setStyle("Fusion");
        QApplication::setWindowIcon(planner::desktop::icon("planner-desktop"));
        planner::desktop::applyAppearance(planner::desktop::readAppearance());
        const planner::desktop::LoopHook hook;
        return run(options);
    } catch (const std::exception& error) {
        complain(error.what());
        return 1;
    }
}
