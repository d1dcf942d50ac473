#include "desktop/Desk.h"

#include "planner/desktop/app/Display.h"
#include "planner/desktop/toolkit/LoopHook.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
/// In the place of the system's: what is unloaded before leaks are looked for, as the renderer's driver is, could be
/// neither searched for what it holds nor named in leaks.txt.
extern "C" [[gnu::visibility("default")]] int dlclose(void*) noexcept {
    return 0;
}
#endif

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const bool isVictim = argc > 1 && std::string(argv[1]) == "--edit-and-wait";
    const QTemporaryDir home;
    for (const char* const variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
        if (!isVictim) { // which has its parent's
            qputenv(variable, home.path().toUtf8());
        }
    }
    if (const auto problem = planner::desktop::displayProblem()) {
        ADD_FAILURE() << *problem;
        return 1;
    }
    QApplication app(argc, argv);
    QApplication::setOrganizationName("planner");
    QApplication::setApplicationName("planner-desktop");
    QApplication::setStyle("Fusion");
    const planner::desktop::LoopHook hook;
    return isVictim ? desk::editAndWait() : RUN_ALL_TESTS();
}
