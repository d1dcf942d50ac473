#pragma once

#include "QORPlatform/dialog/QORDialogObserver.h"
#include "QORPlatform/frame/QORFrmWindow.h"
#include "QORPlatform/framework/QORModelIdentificator.h"
#include "QORPlatform/navigation/QORNavigBox.h"
#include "QORPlatform/toolkit/QORToolkit.h"
#include "QORPlatform/visualization/QORVisManager.h"

#include <functional>
#include <string>
#include <vector>

/// What happened to everything that a person would see, in its order, a line each.
namespace recording {

class Log {
public:
    void add(std::string line) {
        if (before_) {
            before_();
        }
        put(std::move(line));
    }

    /// Adds a line without calling what onLine has set.
    void put(std::string line) { lines_.push_back(std::move(line)); }

    /// Something to do before each line: to bring in what is written down elsewhere.
    void onLine(std::function<void()> before) { before_ = std::move(before); }

    const std::vector<std::string>& lines() const { return lines_; }

    /// The lines since the last call, joined by " | ".
    std::string take() {
        std::string text;
        for (const std::string& line : lines_) {
            text += (text.empty() ? "" : " | ") + line;
        }
        lines_.clear();
        return text;
    }

private:
    std::vector<std::string> lines_;
    std::function<void()> before_;
};

inline std::string nameOf(const QORCommand* command) {
    return command ? std::string(command->GetName()) : std::string("nobody");
}

inline std::string numberOf(QORBaseUnknown& object) {
    return std::to_string(QORModelIdentificator(object.GetImpl(0)).GetIntId());
}

/// Writes the steps in the life of dialog objects: "made A in B", "attached B to A", "A calls back from B" ...
class DialogSteps : public QORDialogObserver {
public:
    explicit DialogSteps(Log& log) : log_(log) {}

    void Happened(QORDialogStep step, const QORCommand& object, const QORCommand* other) override {
        log_.add(lineFor(step, nameOf(&object), other));
    }

private:
    static std::string lineFor(QORDialogStep step, const std::string& name, const QORCommand* other) {
        switch (step) {
        case QORDialogStep::Made:
            return "made " + name + (other ? " in " + nameOf(other) : "");
        case QORDialogStep::Attached:
            return "attached " + nameOf(other) + " to " + name;
        case QORDialogStep::Detached:
            return "detached " + nameOf(other) + " from " + name;
        case QORDialogStep::CallbackRegistered:
            return name + " calls back from " + nameOf(other);
        case QORDialogStep::CallbackRemoved:
            return name + " no longer calls back from " + nameOf(other);
        case QORDialogStep::DestructionRequested:
            return "end of " + name + " requested";
        default:
            return "ended " + name;
        }
    }

    Log& log_;
};

class WindowPeer : public QORFrmWindowPeer {
public:
    WindowPeer(Log& log, QORFrmWindow& window) : log_(log), window_(window) {}
    ~WindowPeer() override { log_.add("window gone"); }

    void TitleChanged() override { log_.add("title " + std::string(window_.GetBaseName())); }
    void LayoutChanged() override { log_.add("layout"); }
    void SelectableViewerChanged() override { log_.add("selectable " + nameOf(window_.GetSelectableViewer())); }
    void Completed() override { log_.add("complete"); }
    void Shown() override { log_.add("shown"); }
    void Hidden() override { log_.add("hidden"); }
    void Raised() override { log_.add("raised"); }
    void FrameEnded() override { log_.add("frame ended"); }

private:
    Log& log_;
    QORFrmWindow& window_;
};

class ViewerPeer : public QORViewerPeer {
public:
    ViewerPeer(Log& log, QORViewer& viewer) : log_(log), viewer_(viewer) {}
    ~ViewerPeer() override { log_.add("viewer gone"); }

    void ViewpointAdded(QORViewpoint& viewpoint) override {
        log_.add(std::string(viewpoint.IsA()) + " added at " + std::to_string(viewer_.GetPlacement(&viewpoint)));
    }
    void EditorChanged(QORViewpoint& viewpoint) override {
        log_.add("editor " + std::string(viewer_.GetViewpointEditor(&viewpoint)->GetName()));
    }
    void ViewpointRemoved(QORViewpoint& viewpoint) override { log_.add(std::string(viewpoint.IsA()) + " removed"); }
    void CameraChanged(QOR3DViewpoint& viewpoint) override {
        log_.add("camera at " + std::to_string(static_cast<int>(viewpoint.GetCamera().eye[0])));
    }
    void FitAll(QORViewpoint&) override { log_.add("fit"); }
    void ObjectChanged(QORViewpoint&, QORBaseUnknown& object, long revision) override {
        log_.add("changed " + numberOf(object) +
                 (revision == QORVisManager::GetVisManager()->GetRevision(&object) ? "" : " wrongly"));
    }
    void ObjectShown(QORViewpoint&, QORBaseUnknown& object) override { log_.add("shown " + numberOf(object)); }
    void ObjectHidden(QORViewpoint&, QORBaseUnknown& object) override { log_.add("hidden " + numberOf(object)); }
    void SelectionChanged(QORViewpoint& viewpoint) override {
        const QORVisManager& manager = *QORVisManager::GetVisManager();
        log_.add("sets " + sizeOf(manager.GetHSO(viewpoint)) + " " + sizeOf(manager.GetPSO(viewpoint)));
    }
    void Redraw() override { log_.add("redraw"); }
    void Draw() override { log_.add("draw"); }

private:
    static std::string sizeOf(const QORXSO* set) { return set ? std::to_string(set->GetSize()) : "none"; }

    Log& log_;
    QORViewer& viewer_;
};

class BoxPeer : public QORNavigBoxPeer {
public:
    BoxPeer(Log& log, QORNavigBox& box) : log_(log), box_(box) {}
    ~BoxPeer() override { log_.add("box gone"); }

    void RowsAboutToCome(QORNavigInstance* parent, int first, int) override { check(parent, first - 1); }
    void RowsCame(QORNavigInstance* parent, int first, int last) override {
        check(parent, last);
        log_.add("+" + labelOf(parent) + range(first, last));
    }
    void RowsAboutToGo(QORNavigInstance* parent, int first, int last) override {
        check(parent, countOf(parent));
        left_ = countOf(parent) - (last - first + 1);
    }
    void RowsGone(QORNavigInstance* parent, int first, int last) override {
        check(parent, left_);
        log_.add("-" + labelOf(parent) + range(first, last));
    }
    void OpenChanged(QORNavigInstance& row) override {
        log_.add((row.IsExpanded() ? "open " : "closed ") + labelOf(&row));
    }
    void NodeChanged(QORNavigInstance& instance) override {
        log_.add("node " + labelOf(&instance) + " " + std::string(instance.GetNode()->GetIconName()) +
                 (instance.IsMarked() ? "!" : ""));
    }
    void SelectionChanged() override { log_.add("selected " + std::to_string(box_.GetSelection().size())); }
    void SettingsChanged() override {
        const QORNavigController* const controller = box_.GetController();
        const QORGraphViewer* const graph = box_.GetGraphViewer();
        log_.add("settings " + (controller ? std::to_string(controller->GetDepth()) : "none") +
                 (graph && graph->isAnchoredViewpoint() ? " anchored" : ""));
    }
    void RefillBegins() override { log_.add("refill"); }
    void RefillEnds() override { log_.add("refilled"); }
    QORNavigInstance* GetTopRow() override { return topRow; }
    void ScrollTo(QORNavigInstance& row, Place place) override {
        log_.add((place == AtTop ? "scrolled up to " : "scrolled to ") + labelOf(&row));
    }

    QORNavigInstance* topRow = nullptr; ///< what a person sees uppermost

private:
    static std::string labelOf(const QORNavigInstance* instance) {
        return instance ? std::string(instance->GetNode()->GetLabel()) : "root";
    }
    static std::string range(int first, int last) { return " " + std::to_string(first) + "-" + std::to_string(last); }
    int countOf(const QORNavigInstance* parent) const { return parent ? parent->GetChildCount() : box_.GetRootCount(); }
    /// As many rows must be there when the peer is told, before and afterwards.
    void check(const QORNavigInstance* parent, int count) {
        if (countOf(parent) != count) {
            log_.add("told at the wrong time of " + labelOf(parent));
        }
    }

    Log& log_;
    QORNavigBox& box_;
    int left_ = 0;
};

/// The toolkit of everything that is made while it exists. Can refuse to show windows, or viewers.
class Toolkit : public QORToolkit {
public:
    explicit Toolkit(Log& log) : log_(log) { QORSetToolkit(this); }
    ~Toolkit() override { QORSetToolkit(nullptr); }

    void refuseWindows() { windows_ = false; }
    void refuseViewers() { viewers_ = false; }

    std::unique_ptr<QORFrmWindowPeer> MakePeer(QORFrmWindow& window) override {
        return windows_ ? std::make_unique<WindowPeer>(log_, window) : nullptr;
    }
    std::unique_ptr<QORViewerPeer> MakePeer(QORViewer& viewer) override {
        return viewers_ ? std::make_unique<ViewerPeer>(log_, viewer) : nullptr;
    }
    std::unique_ptr<QORNavigBoxPeer> MakePeer(QORNavigBox& box) override {
        return std::make_unique<BoxPeer>(log_, box);
    }

private:
    Log& log_;
    bool windows_ = true;
    bool viewers_ = true;
};

} // namespace recording
