#include "desktop/Desk.h"

#include "planner/desktop/app/FileCommands.h"
#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/plan/Recovery.h"
#include "planner/desktop/toolkit/FramePane.h"

#include <QAction>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QMenu>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <stdexcept>

namespace desk {

const char* const kPlan = R"({"version": 1,
  "items": [
    {"id": "door", "kind": "product", "shape": {"box": [900, 15, 600]}},
    {"id": "hinge", "kind": "product", "shape": {"cylinder": [50, 200]}, "place": [1200, 0, 0], "children": ["pin"]},
    {"id": "pin", "kind": "product"},
    {"id": "rivet", "kind": "fastener", "type": "Rivet"},
    {"id": "rack", "kind": "item"}],
  "process": {"id": "line", "children": [
    {"id": "one", "first_assigned": ["door"]},
    {"id": "two", "first_assigned": ["hinge"], "items": ["rivet"]},
    {"id": "end"}]},
  "links": [["one", "two"], ["two", "end"]]})";

Desk::Desk(const std::string& plan, int mode) {
    QSettings().clear();
    QTemporaryDir folder;
    folder.setAutoRemove(false);
    folder_ = folder.path();
    window_ = std::make_unique<planner::desktop::MainWindow>();
    planner::desktop::Options options;
    if (!plan.empty()) {
        QFile out(file());
        out.open(QIODevice::WriteOnly);
        out.write(plan.c_str());
        out.close();
        options.plan = file().toStdString();
        options.mode = mode;
    }
    const QStringList faults = window_->open(options);
    if (!faults.isEmpty()) {
        throw std::runtime_error(faults.join('\n').toStdString());
    }
    window_->show();
    window_->activateWindow();
    if (!QTest::qWaitForWindowActive(window_.get())) {
        throw std::runtime_error("the window doesn't come");
    }
    settle();
}

Desk::~Desk() {
    window_.reset();
    settle();
    QDir(folder_).removeRecursively();
}

QString Desk::file() const {
    return folder_ + "/shop.plan.json";
}

QTreeView& Desk::bill() {
    return *window_->area().current()->tree();
}

QAction& Desk::action(const QString& text) {
    for (QAction* const each : window_->findChildren<QAction*>()) {
        if (!each->menu() && each->text().remove('&').startsWith(text)) {
            return *each;
        }
    }
    throw std::runtime_error("there is no action " + text.toStdString());
}

QModelIndex Desk::row(QAbstractItemView& view, const QString& name, const QModelIndex& above) {
    const QAbstractItemModel& model = *view.model();
    for (int at = 0; at < model.rowCount(above); ++at) {
        const QModelIndex index = model.index(at, 0, above);
        if (index.data().toString() == name) {
            return index;
        }
        if (const QModelIndex below = row(view, name, index); below.isValid()) {
            return below;
        }
    }
    return {};
}

namespace {

QPoint placeOf(QAbstractItemView& view, const QString& name) {
    const QModelIndex index = Desk::row(view, name);
    if (!index.isValid()) {
        throw std::runtime_error("there is no row " + name.toStdString());
    }
    view.scrollTo(index);
    const QRect rect = view.visualRect(index);
    return {rect.left() + 30, rect.center().y()};
}

} // namespace

void Desk::click(QAbstractItemView& view, const QString& name, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, placeOf(view, name));
    settle();
}

QString Desk::selected(QAbstractItemView& view) {
    QStringList names;
    for (const QModelIndex& index : view.selectionModel()->selectedIndexes()) {
        if (index.column() == 0) {
            names << index.data().toString();
        }
    }
    names.sort();
    return names.join(' ');
}

void Desk::drag(QAbstractItemView& from, const QString& name, QAbstractItemView& to, const QString& onto) {
    QWindow* const window = to.window()->windowHandle();
    const auto inWindow = [&](QAbstractItemView& view, const QString& row) {
        return window->mapFromGlobal(view.viewport()->mapToGlobal(placeOf(view, row)));
    };
    const QPoint target = inWindow(to, onto);
    const QPoint start = inWindow(from, name);
    QTest::mousePress(window, Qt::LeftButton, {}, start);
    // The drag has an event loop of its own: the rest of the gesture waits there.
    QTimer::singleShot(50, [&] { QTest::mouseMove(window, target - QPoint(3, 0)); });
    QTimer::singleShot(100, [&] { QTest::mouseMove(window, target); });
    QTimer::singleShot(150, [&] { QTest::mouseRelease(window, Qt::LeftButton, {}, target); });
    const int far = 2 * QApplication::startDragDistance();
    QTest::mouseMove(window, start + QPoint(far, 0));
    QTest::mouseMove(window, start + QPoint(2 * far, 0));
    QTest::qWait(250);
    settle();
}

QString Desk::text(const QTreeView& tree) {
    const std::function<QString(const QModelIndex&)> below = [&](const QModelIndex& above) {
        QStringList parts;
        for (int at = 0; at < tree.model()->rowCount(above); ++at) {
            const QModelIndex index = tree.model()->index(at, 0, above);
            const QString inner = tree.isExpanded(index) ? below(index) : QString();
            parts << index.data().toString() + (inner.isEmpty() ? QString() : '(' + inner + ')');
        }
        return parts.join(' ');
    };
    return below({});
}

QString Desk::links() {
    QStringList texts;
    for (const planner::Link& link : session().plan().links()) {
        texts << QString::fromStdString(link.from->name() + '>' + link.to->name());
    }
    return texts.join(' ');
}

void Desk::type(const QString& keys, bool enter) {
    QWidget* const target = QApplication::focusWidget();
    if (!target) {
        throw std::runtime_error("nothing has the keyboard for " + keys.toStdString());
    }
    QTest::keyClicks(target, keys);
    if (enter) {
        QTest::keyClick(target, Qt::Key_Return);
    }
    settle();
}

void Desk::settle() {
    constexpr int kMoment = 10;
    QEventLoop loop; // which waits, as the application's does: what is put off until then is done
    QTimer::singleShot(kMoment, &loop, &QEventLoop::quit);
    loop.exec();
}

int editAndWait() {
    constexpr int kLong = 60000;
    Desk desk;
    desk.session().perform([&](planner::PlanEditor& editor) { editor.rename(desk.object("one"), "Rescued"); });
    const auto& recovery = desk.window().files().recovery();
    if (!QTest::qWaitFor([&] { return QFile::exists(recovery.file()); }, kLong)) {
        return 1;
    }
    std::puts(qPrintable(desk.file()));
    std::fflush(stdout);
    QTest::qWait(kLong);
    return 0;
}

} // namespace desk
