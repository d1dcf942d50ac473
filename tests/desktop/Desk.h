#pragma once

#include "planner/desktop/app/MainWindow.h"
#include "planner/desktop/plan/PlanSession.h"

#include <QTest>
#include <QTreeView>

#include <memory>
#include <ostream>
#include <string>

/// For messages of tests.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

/// The main window as a person has it in front of him.
namespace desk {

/// Three steps in a row: "one" brings a door, "two" a hinge with a pin, and an item that nobody takes.
extern const char* const kPlan;

class Desk {
public:
    /// Writes the plan to a file of its own and opens that in a display mode; an empty text opens an empty window.
    explicit Desk(const std::string& plan = kPlan, int mode = 1);
    ~Desk();

    planner::desktop::MainWindow& window() { return *window_; }
    planner::desktop::PlanSession& session() { return window_->session(); }
    planner::ModelObject& object(const char* id) { return session().editor().object(id); }
    QString file() const;

    template <class Widget>
    Widget& find(const char* name) {
        auto* const found = window_->findChild<Widget*>(name);
        if (!found) {
            throw std::runtime_error(std::string("there is no ") + name);
        }
        return *found;
    }
    QTreeView& plan() { return find<QTreeView>("plan-tree"); }

    /// The tree of the window that is in front.
    QTreeView& bill();

    /// The menu action whose text begins like that, without marks of access keys.
    QAction& action(const QString& text);

    /// The present row of that name in a tree or a list, invalid when there is none.
    static QModelIndex row(QAbstractItemView& view, const QString& name, const QModelIndex& above = {});
    static void click(QAbstractItemView& view, const QString& name, Qt::KeyboardModifiers modifiers = {});
    static QString selected(QAbstractItemView& view);

    /// Drags a row of one view onto a row of another by the mouse.
    static void drag(QAbstractItemView& from, const QString& name, QAbstractItemView& to, const QString& onto);

    /// The plan's links, "one>two two>end".
    QString links();

    /// A tree as text as far as it is open: "Bom(door hinge(pin))".
    static QString text(const QTreeView& tree);

    /// Types into whatever has the keyboard; Enter at the end where `enter` is set.
    void type(const QString& keys, bool enter = false);

    /// Lets events that wait be handled.
    static void settle();

private:
    QString folder_;
    std::unique_ptr<planner::desktop::MainWindow> window_;
};

/// Main function of a process that is there to be killed: opens a plan, renames "one" to "Rescued", and prints the path
/// of the plan's file once the recovery file is written.
int editAndWait();

} // namespace desk
