// The items of the BOM in the view in space. What is shown is the generator's whole list of objects, whatever is chosen
// in the tree.

#include "QORPlatform/visualization/QORI3DGeoVisu.h"
#include "QORPlatform/visualization/QORPathElement.h"
#include "QORPlatform/visualization/QORVisManager.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewerState.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"

namespace {

/// Calls iAct(path, interfaces) for each object that is an item and can be seen, as a path of one.
template <class Act>
void ForEachShowable(const VXMFabBomViewerState& iState, const QORListValQORBaseUnknown_var& iObjects, Act iAct) {
    QORListInterfaceID interfaces;
    interfaces.Append(&IID_QORI3DGeoVisu);
    for (const QORBaseUnknown_var& object : iObjects) {
        const QORISPPItem_var item(object);
        const QORI3DGeoVisu_var visible(item);
        if (!visible) {
            continue;
        }
        const auto path = QORVar<QORPathElement>::Adopt(new QORPathElement(visible.Get()));
        if (iState._visManager && iState._viewer && iState._viewpoint) {
            iAct(path.Get(), interfaces);
        }
    }
}

} // namespace

void VXMFabBomViewer::MBOMItems3DView() {
    const VXMTraceMarks marks("--> VXMFabBomViewer::MBOMItems3DView", "<-- VXMFabBomViewer::MBOMItems3DView");
    if (!_state->_generator) {
        return;
    }
    _state->_previewObjects = _state->_generator->GetPreviewObjects();
    if (_state->_previewObjects.Size() > 0) {
        Visualize(_state->_previewObjects);
    }
}

void VXMFabBomViewer::Visualize(const QORListValQORBaseUnknown_var& iObjects) {
    ForEachShowable(*_state, iObjects, [this](const QORPathElement* iPath, const QORListInterfaceID& iInterfaces) {
        _state->_visManager->AttachTo(iPath, _state->_viewpoint, iInterfaces, _state->_viewer, 0, 0, 0, 0, 0);
    });
    QORFrmEditor* const editor = QORFrmEditor::GetCurrentEditor();
    if (editor && _state->_visManager && _state->_viewpoint) {
        if (_state->_visManager->AttachHSOTo(editor->GetHSO(), _state->_viewpoint) < 0) {
            VXMBomViewerTrace.TraPutLN("Failed to attach HSO to viewpoint for BOMViewer");
        }
        if (_state->_visManager->AttachPSOTo(editor->GetPSO(), _state->_viewpoint) < 0) {
            VXMBomViewerTrace.TraPutLN("Failed to attach PSO to viewpoint for BOMViewer");
        }
    }
    if (_state->_viewer) {
        _state->_viewer->Draw();
    }
}

void VXMFabBomViewer::RemoveBOMItems(const QORListValQORBaseUnknown_var iObjects) {
    ForEachShowable(*_state, iObjects, [this](const QORPathElement* iPath, const QORListInterfaceID& iInterfaces) {
        _state->_visManager->DetachPSOFrom(_state->_viewpoint);
        _state->_visManager->DetachHSOFrom(_state->_viewpoint);
        _state->_visManager->DetachFrom(iPath, _state->_viewpoint, iInterfaces, 0);
    });
    if (_state->_viewer) {
        _state->_viewer->Draw();
    }
}
