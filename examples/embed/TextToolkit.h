// A toolkit of one's own: it shows windows as text, and paints what has changed when it is asked to. It shows trees; a
// window with a view of the items opens without that view.
#pragma once

#include <QORPlatform/frame/QORFrmWindow.h>
#include <QORPlatform/navigation/QORNavigBox.h>
#include <QORPlatform/toolkit/QORToolkit.h>

#include <iostream>
#include <set>
#include <string>

class TextToolkit : public QORToolkit {
public:
    TextToolkit() { QORSetToolkit(this); }
    ~TextToolkit() override { QORSetToolkit(nullptr); }

    /// Paints the trees that have changed since it was last called.
    void paint() {
        for (QORNavigBox* box : changed_) {
            for (int position = 1; position <= box->GetRootCount(); ++position) {
                paint(*box, *box->GetRoot(position), 0);
            }
        }
        changed_.clear();
    }

    std::unique_ptr<QORFrmWindowPeer> MakePeer(QORFrmWindow& window) override {
        return std::make_unique<WindowPeer>(window);
    }
    std::unique_ptr<QORNavigBoxPeer> MakePeer(QORNavigBox& box) override {
        return std::make_unique<TreePeer>(*this, box);
    }
    std::unique_ptr<QORViewerPeer> MakePeer(QORViewer&) override { return nullptr; }

private:
    class WindowPeer : public QORFrmWindowPeer {
    public:
        explicit WindowPeer(QORFrmWindow& window) : window_(window) {}
        void TitleChanged() override {}
        void LayoutChanged() override {}
        void SelectableViewerChanged() override {}
        void Completed() override {}
        void Shown() override { std::cout << "[window " << window_.GetBaseName() << "]\n"; }
        void Hidden() override {}
        void Raised() override {}
        void FrameEnded() override {}

    private:
        QORFrmWindow& window_;
    };

    /// Notes that the tree has changed; rows are asked for when it is painted.
    class TreePeer : public QORNavigBoxPeer {
    public:
        TreePeer(TextToolkit& toolkit, QORNavigBox& box) : toolkit_(toolkit), box_(box) {}
        ~TreePeer() override { toolkit_.changed_.erase(&box_); }

        void RowsCame(QORNavigInstance*, int, int) override { toolkit_.changed_.insert(&box_); }
        void RowsGone(QORNavigInstance*, int, int) override { toolkit_.changed_.insert(&box_); }
        void NodeChanged(QORNavigInstance&) override { toolkit_.changed_.insert(&box_); }
        void RowsAboutToCome(QORNavigInstance*, int, int) override {}
        void RowsAboutToGo(QORNavigInstance*, int, int) override {}
        void OpenChanged(QORNavigInstance&) override {}
        void SelectionChanged() override {}
        void SettingsChanged() override {}
        void RefillBegins() override {}
        void RefillEnds() override {}
        QORNavigInstance* GetTopRow() override { return nullptr; }
        void ScrollTo(QORNavigInstance&, Place) override {}

    private:
        TextToolkit& toolkit_;
        QORNavigBox& box_;
    };

    /// A row and all below it, each opened as by a person.
    static void paint(QORNavigBox& box, QORNavigInstance& row, int depth) {
        std::cout << std::string(2 * static_cast<std::size_t>(depth), ' ') << row.GetNode()->GetLabel() << '\n';
        box.ReportExpand(row);
        for (int position = 1; position <= row.GetChildCount(); ++position) {
            paint(box, *row.GetChild(position), depth + 1);
        }
    }

    std::set<QORNavigBox*> changed_;
};
