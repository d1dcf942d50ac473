#include "library/WindowDesk.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/visualization/QORVisManager.h"

namespace editing {

const char* const kShop = R"({"version": 1,
  "items": [
    {"id": "door", "kind": "product", "shape": {"box": [9, 1, 6]}},
    {"id": "hinge", "kind": "product", "shape": {"sphere": [1]}, "children": ["pin"]},
    {"id": "pin", "kind": "product"},
    {"id": "rack", "kind": "item", "shape": {"cylinder": [1, 2]}}],
  "process": {"id": "line", "children": [
    {"id": "one", "first_assigned": ["door"]},
    {"id": "two", "first_assigned": ["hinge"]},
    {"id": "end"}]},
  "links": [["one", "two"], ["two", "end"]]})";

Window::Window(QORFrmEditor* editor, QORBaseUnknown* root, int mode, const char* name) {
    QORBaseUnknown_var handle(root);
    window_ = new VXMFabBomViewer(name, editor, handle, mode);
}

void Window::close() {
    if (window_) {
        std::exchange(window_, nullptr)->Release();
        QORDialogLoop::Get().Run();
    }
}

namespace {

std::string treeOf(QORNavigBox& box, QORNavigInstance& instance) {
    std::string text(instance.GetNode()->GetLabel());
    box.ReportExpand(instance);
    for (int position = 1; position <= instance.GetChildCount(); ++position) {
        text += (position == 1 ? "(" : " ") + treeOf(box, *instance.GetChild(position));
    }
    return text + (instance.GetChildCount() > 0 ? ")" : "");
}

} // namespace

std::string Window::tree() const {
    std::string text;
    for (int position = 1; position <= box().GetRootCount(); ++position) {
        text += (position == 1 ? "" : " ") + treeOf(box(), *box().GetRoot(position));
    }
    return text;
}

std::string Window::shown() const {
    const QORViewpoint* const viewpoint = viewer().GetMain3DViewpoint();
    if (!viewpoint) {
        return "no view in space";
    }
    std::string text;
    for (const QORBaseUnknown_var& object : QORVisManager::GetVisManager()->GetShown(*viewpoint)) {
        text += (text.empty() ? "" : " ") + planner::ModelObject::behind(object)->name();
    }
    return text;
}

std::string Desk::bill() {
    const std::string bill = billUnder(*plan().process());
    return bill.empty() ? "Bom" : "Bom(" + bill + ")";
}

} // namespace editing
