// Plan files: saving, what changes outside, what survives a kill, and the program from outside.

#include "desktop/Desk.h"

#include "planner/desktop/app/FileCommands.h"
#include "planner/desktop/plan/Recovery.h"
#include "planner/desktop/widgets/InfoBar.h"
#include "planner/desktop/widgets/SaveName.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

namespace {

using desk::Desk;
using planner::desktop::InfoBar;
using planner::desktop::Recovery;

QString readText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void writeText(const QString& path, const QString& text) {
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(text.toUtf8());
}

void rename(Desk& desk, const char* id, const char* name) {
    desk.session().perform([&](planner::PlanEditor& editor) { editor.rename(desk.object(id), name); });
}

void answer(Desk& desk, const QString& text) {
    for (QPushButton* const button : desk.find<InfoBar>("info-bar").findChildren<QPushButton*>()) {
        if (button->isVisible() && button->text() == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    throw std::runtime_error("nobody asks for " + text.toStdString());
}

TEST(FileTest, TheTitleMarksWhatIsNotSavedAndSavingWritesIt) {
    Desk desk;
    rename(desk, "one", "First");
    EXPECT_TRUE(desk.window().isWindowModified());
    QTest::keyClick(&desk.window(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(desk.window().isWindowModified());
    EXPECT_TRUE(readText(desk.file()).contains("First"));
    QTest::qWait(400);
    EXPECT_EQ(desk.find<InfoBar>("info-bar").text(), ""); // our own writing is no change from outside
    EXPECT_EQ(planner::desktop::FileCommands::recentFiles().front(), desk.file());
}

TEST(FileTest, WhatIsStillBeingTypedIsSavedOrAskedAbout) {
    Desk desk;
    const auto typeName = [&](const char* name) {
        Desk::click(desk.plan(), desk.object("one").name().c_str());
        auto& field = desk.find<QLineEdit>("name");
        field.setFocus();
        field.selectAll();
        desk.type(name);
    };
    typeName("First");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(readText(desk.file()).contains("First"));
    typeName("Later");
    QString question;
    QTimer::singleShot(50, [&] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        question = box->text();
        box->button(QMessageBox::Cancel)->click();
    });
    EXPECT_FALSE(desk.window().close());
    EXPECT_TRUE(question.contains("Save the changes"));
    EXPECT_EQ(desk.object("one").name(), "Later");
}

TEST(FileTest, ClosingAsksWhatBecomesOfChangesAndStaysWhenSavingFails) {
    struct Answer {
        QMessageBox::StandardButton button;
        bool isFolderThere;
        bool closes;
        bool isSaved;
        const char* told; // in the bar above
    };
    constexpr Answer kAnswers[] = {{QMessageBox::Cancel, true, false, false, ""},
                                   {QMessageBox::Save, false, false, false, "can't be written"},
                                   {QMessageBox::Discard, true, true, false, ""},
                                   {QMessageBox::Save, true, true, true, ""}};
    for (const Answer& each : kAnswers) {
        Desk desk;
        const QString folder = QFileInfo(desk.file()).path();
        rename(desk, "one", "First");
        if (!each.isFolderThere) {
            QDir(folder).removeRecursively();
        }
        QTimer::singleShot(50, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QTest::mouseClick(box->button(each.button), Qt::LeftButton);
        });
        QTest::keyClick(&desk.window(), Qt::Key_Q, Qt::ControlModifier);
        EXPECT_EQ(desk.window().isVisible(), !each.closes) << each.button;
        EXPECT_TRUE(desk.find<InfoBar>("info-bar").text().contains(each.told)) << each.button;
        EXPECT_EQ(desk.window().isWindowModified(), !each.isSaved) << each.button;
        EXPECT_EQ(readText(desk.file()).contains("First"), each.isSaved) << each.button;
    }
}

TEST(FileTest, AnEndingIsAddedToTheNameAloneAndReplacesNothingUnasked) {
    Desk desk;
    using planner::desktop::withEnding;
    const QString folder = QFileInfo(desk.file()).path();
    const QString plain = folder + "/shop";
    EXPECT_EQ(withEnding(nullptr, "", "csv"), "");
    EXPECT_EQ(withEnding(nullptr, folder + "/a.txt", "csv"), folder + "/a.txt");
    EXPECT_EQ(withEnding(nullptr, "/v1.2/shop", "csv"), "/v1.2/shop.csv");
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        QTimer::singleShot(
            50, [answer] { qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->button(answer)->click(); });
        EXPECT_EQ(withEnding(&desk.window(), plain, "plan.json"), answer == QMessageBox::Yes ? desk.file() : "");
    }
}

TEST(FileTest, AFileChangedOutsideIsReadAgainWhenAPersonWantsIt) {
    Desk desk;
    const auto isAsked = [&] {
        return desk.find<InfoBar>("info-bar").text().contains("changed by another program");
    };
    writeText(desk.file(), readText(desk.file()).replace("\"one\"", "\"uno\""));
    ASSERT_TRUE(QTest::qWaitFor(isAsked, 3000));
    answer(desk, "Reload");
    EXPECT_EQ(desk.object("uno").name(), "uno");
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge rivet door)"); // its window is open again
    writeText(desk.file(), "no plan");
    ASSERT_TRUE(QTest::qWaitFor(isAsked, 3000));
    answer(desk, "Reload");
    EXPECT_TRUE(desk.find<InfoBar>("info-bar").text().contains(":1:2"));
    EXPECT_EQ(desk.object("uno").name(), "uno");
}

TEST(FileTest, WhatAKilledProcessHasNotSavedIsOffered) {
    QProcess other;
    other.start(QApplication::applicationFilePath(), {"--edit-and-wait"});
    ASSERT_TRUE(other.waitForReadyRead(20000));
    const QString file = QString::fromUtf8(other.readLine()).trimmed();
    EXPECT_TRUE(Recovery::left().empty()); // its process lives
    ::kill(static_cast<pid_t>(other.processId()), SIGKILL);
    ASSERT_TRUE(other.waitForFinished());
    ASSERT_EQ(Recovery::left().size(), 1U);

    Desk desk("");
    desk.window().files().offerRecovery();
    answer(desk, "Restore");
    EXPECT_EQ(desk.object("one").name(), "Rescued");
    EXPECT_EQ(desk.session().path(), file);
    EXPECT_TRUE(desk.window().isWindowModified());
    EXPECT_TRUE(Recovery::left().empty());
}

TEST(FileTest, ARefusalStandsBelowAnOfferThatCanStillBeTaken) {
    Desk desk;
    auto& bar = desk.find<InfoBar>("info-bar");
    bool isTaken = false;
    bar.say("Reload?", {{"Yes", [&] {
                             isTaken = true;
                         }}});
    bar.say("That can't be.");
    EXPECT_EQ(bar.text(), "Reload?\nThat can't be.");
    answer(desk, "Yes");
    EXPECT_TRUE(isTaken);
    bar.say("Alone.");
    EXPECT_EQ(bar.text(), "Alone.");
}

struct RunCase {
    const char* what;
    QStringList arguments;
    QStringList environment;
    int status;
    const char* message;
};

TEST(FileTest, TheProgramSaysWhyItCannotShowAWindow) {
    const char* const plan = EXAMPLES "/robot-cell.plan.json";
    const RunCase cases[] = {{"no display", {}, {"DISPLAY="}, 2, "DISPLAY is not set"},
                             {"a display that isn't there", {}, {"DISPLAY=:4711"}, 2, ":4711"},
                             {"a platform that isn't there", {}, {"QT_QPA_PLATFORM=nix"}, 2, "nix"},
                             {"no file", {"nowhere.plan.json", "--screenshot", "x.png"}, {}, 2, "nowhere.plan.json"},
                             {"no root", {plan, "--root", "nix", "--screenshot", "x.png"}, {}, 2, "\"nix\""},
                             {"no mode", {"--mode", "4"}, {}, 2, "--mode"}};
    for (const RunCase& each : cases) {
        QProcess process;
        process.setEnvironment(QProcess::systemEnvironment() + each.environment);
        process.start(DESKTOP_PROGRAM, each.arguments);
        ASSERT_TRUE(process.waitForFinished()) << each.what;
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << each.what;
        EXPECT_EQ(process.exitCode(), each.status) << each.what;
        EXPECT_TRUE(process.readAllStandardError().contains(each.message)) << each.what;
    }
}

TEST(FileTest, AScreenshotShowsTheWindow) {
    Desk desk;
    const QString picture = desk.file() + ".png";
    // The renderer's driver leaks when the display is closed, and is unloaded by the time that leaks are looked for: no
    // name is left to suppress. What else the program does the other tests do in this process.
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() << "ASAN_OPTIONS=detect_leaks=0");
    process.start(DESKTOP_PROGRAM, {EXAMPLES "/door-line.plan.json", "--screenshot", picture});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
    const QImage image(picture);
    EXPECT_GE(image.width(), 1000);
    EXPECT_EQ(QProcess::execute(DESKTOP_PROGRAM, {"--screenshot", "/nowhere/x.png"}), 2);
}

} // namespace
