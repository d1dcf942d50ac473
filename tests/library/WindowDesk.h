#pragma once

#include "planner/edit/EditSession.h"

#include "QORPlatform/frame/QORFrmEditor.h"
#include "QORPlatform/navigation/QORNavigBox.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"

#include <memory>
#include <string>
#include <vector>

/// Windows on a plan, and what a person would see in them.
namespace editing {

/// Two steps that bring a door and a hinge with a pin, a last one, and a rack that nobody takes; all but the pin can be
/// seen.
extern const char* const kShop;

/// The first dialog of that class below another, the search going depth first; null when there is none.
template <class T>
T* findBelow(const QORDialog& dialog) {
    for (QORDialog* child : dialog.GetChildren()) {
        auto* const here = dynamic_cast<T*>(child);
        if (auto* const found = here || !child ? here : findBelow<T>(*child)) {
            return found;
        }
    }
    return nullptr;
}

/// A window that is let go with this object, or before by close().
class Window {
public:
    Window(QORFrmEditor* editor, QORBaseUnknown* root, int mode, const char* name = "W");
    ~Window() { close(); }
    Window(Window&& other) noexcept : window_(std::exchange(other.window_, nullptr)) {}
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Lets the window go, and what waited for its end with it.
    void close();

    VXMFabBomViewer& operator*() const { return *window_; }
    VXMFabBomViewer* operator->() const { return window_; }

    QORNavigBox& box() const { return *findBelow<QORNavigBox>(*window_); }
    QORViewer& viewer() const { return *window_->GetSelectableViewer(); }

    /// The labels in the tree, each node opened as by a person: "Bom(Frame(part) jig)".
    std::string tree() const;

    /// Names of the objects that are shown, in order.
    std::string shown() const;

private:
    VXMFabBomViewer* window_;
};

/// A session whose document is that of the current editor.
class Desk : public Session {
public:
    explicit Desk(const char* text) : Session(text) { QORFrmEditor::SetCurrentEditor(frmEditor_.Get()); }

    QORFrmEditor& frmEditor() { return *frmEditor_.Get(); }
    Window open(int mode, const char* name = "W") { return {frmEditor_.Get(), plan().process(), mode, name}; }

    /// The bill that a new generator makes, as a tree() says it.
    std::string bill();

private:
    QORVar<QORFrmEditor> frmEditor_ = QORVar<QORFrmEditor>::Adopt(new QORFrmEditor(&document()));
};

} // namespace editing
