#pragma once

#include "planner/edit/PlanEditor.h"

#include "QORPlatform/frame/QORFrmEditor.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

namespace planner::desktop {

/// The plan that is open: its document with the editor, and the file that it belongs to. There is always one, be it
/// empty. What shows or changes the plan goes by this object.
class PlanSession : public QObject {
    Q_OBJECT

public:
    explicit PlanSession(QObject* parent = nullptr);
    ~PlanSession() override;

    Plan& plan() const { return editor_->plan(); }
    const PlanEditor& editor() const { return *editor_; }

    /// The document as the platform's windows know it, with the selection sets of who looks at it.
    QORFrmEditor& frmEditor() const { return *frmEditor_.Get(); }

    /// Path of the plan's file, empty for a plan that has none yet.
    const QString& path() const { return path_; }

    /// Name for headings: the plan's title, else that of its file.
    QString title() const;

    /// Makes edits: `edits` may call any of the editor's operations. False, after `refused` was emitted, when one was
    /// refused. `changed` is emitted at the end. Several operations that are to be undone at once go through the
    /// editor's group().
    bool perform(const std::function<void(PlanEditor&)>& edits);
    void undo();
    void redo();

    /// Takes an empty plan, or the plan of a file, in place of the present one. A file that can't be read changes
    /// nothing and gives its faults, a line each.
    void startNew();
    QStringList open(const QString& path);

    /// Takes a plan that belongs to the file of that path (empty for none) in place of the present one.
    void take(std::unique_ptr<Plan> plan, const QString& path);

    /// The same for a plan that its file doesn't hold: it counts as modified until it is saved.
    void takeUnsaved(std::unique_ptr<Plan> plan, const QString& path);

    /// Writes the plan to a file, which is its file from then on. Gives what went wrong, or nothing.
    QString saveAs(const QString& path);

    bool isModified() const { return unsaved_ || editor_->isModified(); }

Q_SIGNALS:
    /// The present plan is about to go: let go of all that belongs to it. Its objects are still there.
    void aboutToReplace();
    /// Another plan is there.
    void replaced();
    /// Something in the plan was changed, undone or redone; the platform's windows know by now.
    void changed();
    /// The plan was written to its file.
    void saved();
    /// The plan's file, or whether the plan differs from it, is another.
    void fileStateChanged();
    /// An edit was refused, for this reason. Nothing has changed.
    void refused(const QString& reason);

private:
    void make(std::unique_ptr<Plan> plan, const QString& path);
    void drop();

    QORVar<PlanDocument> document_;
    QORVar<QORFrmEditor> frmEditor_;
    std::unique_ptr<PlanEditor> editor_;
    QString path_;
    bool unsaved_ = false; // what the editor began with stands in no file
};

} // namespace planner::desktop
