// All that can be done by mouse can be done by keys.

#include "desktop/Desk.h"

#include <QAction>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <gtest/gtest.h>

#include <set>

namespace {

using desk::Desk;

/// Goes through a menu and those in it, and gives what is wrong with its access keys.
void checkKeys(const QList<QAction*>& actions, const QString& where, std::set<const QAction*>& met,
               QStringList& wrong) {
    std::map<QChar, QString> keys;
    for (const QAction* const action : actions) {
        met.insert(action);
        const QString text = action->text();
        if (action->isSeparator() || where.endsWith("Open Recent")) {
            continue;
        }
        const qsizetype at = text.indexOf('&') + 1;
        if (at == 0) {
            wrong << where + ": no key in " + text;
        } else if (const auto [known, isNew] = keys.emplace(text[at].toUpper(), text); !isNew) {
            wrong << where + ": " + known->second + " and " + text;
        }
        if (action->menu()) {
            checkKeys(action->menu()->actions(), where + " > " + QString(text).remove('&'), met, wrong);
        }
    }
}

TEST(KeysTest, EveryCommandStandsInAMenuUnderAKeyOfItsOwn) {
    Desk desk;
    std::set<const QAction*> met;
    QStringList wrong;
    checkKeys(desk.window().menuBar()->actions(), "menu bar", met, wrong);
    std::set<const QAction*> elsewhere;
    checkKeys(desk.find<QMenu>("context-menu").actions(), "context menu", elsewhere, wrong);
    EXPECT_EQ(wrong.join('\n'), "");
    for (const QAction* const action : desk.find<QToolBar>("tools").actions()) {
        const bool isWidget = action->text().isEmpty();
        EXPECT_TRUE(isWidget || met.count(action) == 1) << action->text().toStdString();
    }
    std::set<QString> shortcuts;
    for (const QAction* const action : met) {
        const QString keys = action->shortcut().toString();
        EXPECT_TRUE(keys.isEmpty() || shortcuts.insert(keys).second) << keys.toStdString();
    }
}

TEST(KeysTest, ItemsAreCopiedAndMovedToStepsWithoutAMouse) {
    Desk desk;
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(&desk.window(), key, modifiers);
        Desk::settle();
    };
    press(Qt::Key_2, Qt::AltModifier);
    QTest::keyClick(&desk.find<QListView>("item-list"), Qt::Key_End);
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_1, Qt::AltModifier);
    QTest::keyClick(&desk.plan(), Qt::Key_End);
    press(Qt::Key_V, Qt::ControlModifier);
    auto* const menu = &desk.find<QMenu>("relation-menu");
    ASSERT_TRUE(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    Desk::settle();
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(rack hinge rivet door)");

    QTest::keyClick(&desk.plan(), Qt::Key_Right); // opens the step
    QTest::keyClick(&desk.plan(), Qt::Key_Down);
    press(Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(&desk.plan(), Qt::Key_Home);
    QTest::keyClick(&desk.plan(), Qt::Key_Down);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge rivet door rack)");
    press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Desk::text(desk.plan()), "line(two one end)");
}

} // namespace
