// The items of the BOM in the view in space. What is shown is the generator's whole list of objects, whatever is chosen
// in the tree.

#include "QORPlatform/visualization/QORI3DGeoVisu.h"
#include "QORPlatform/visualization/QORPathElement.h"
#include "QORPlatform/visualization/QORVisManager.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMTraceMarks.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"

/// Calls iAct(path, interfaces) for each object that is an item and can be seen, as a path of one.
template <class Act>
void VXMFabBomViewer::ForEachShowable(const QORListValQORBaseUnknown_var& iObjects, Act iAct) {
    QORListInterfaceID interfaces;
    interfaces.Append(&IID_QORI3DGeoVisu);
    for (const QORBaseUnknown_var& object : iObjects) {
        const QORISPPItem_var item(object);
        const QORI3DGeoVisu_var visible(item);
        if (!visible) {
            continue;
        }
        const auto path = QORVar<QORPathElement>::Adopt(new QORPathElement(visible.Get()));
        if (_visManager && _viewer && _viewpoint) {
            iAct(path.Get(), interfaces);
        }
    }
}

void VXMFabBomViewer::MBOMItems3DView() {
    const VXMTraceMarks marks("--> VXMFabBomViewer::MBOMItems3DView", "<-- VXMFabBomViewer::MBOMItems3DView");
    if (!_generator) {
        return;
    }
    _previewObjects = _generator->GetPreviewObjects();
    if (_previewObjects.Size() > 0) {
        Visualize(_previewObjects);
    }
}

void VXMFabBomViewer::Visualize(const QORListValQORBaseUnknown_var& iObjects) {
    ForEachShowable(iObjects, [this](const QORPathElement* iPath, const QORListInterfaceID& iInterfaces) {
        _visManager->AttachTo(iPath, _viewpoint, iInterfaces, _viewer, 0, 0, 0, 0, 0);
    });
    QORFrmEditor* const editor = QORFrmEditor::GetCurrentEditor();
    if (editor && _visManager && _viewpoint) {
        if (_visManager->AttachHSOTo(editor->GetHSO(), _viewpoint) < 0) {
            VXMBomViewerTrace.TraPutLN("Failed to attach HSO to viewpoint for BOMViewer");
        }
        if (_visManager->AttachPSOTo(editor->GetPSO(), _viewpoint) < 0) {
            VXMBomViewerTrace.TraPutLN("Failed to attach PSO to viewpoint for BOMViewer");
        }
    }
    if (_viewer) {
        _viewer->Draw();
    }
}

void VXMFabBomViewer::RemoveBOMItems(const QORListValQORBaseUnknown_var iObjects) {
    ForEachShowable(iObjects, [this](const QORPathElement* iPath, const QORListInterfaceID& iInterfaces) {
        _visManager->DetachPSOFrom(_viewpoint);
        _visManager->DetachHSOFrom(_viewpoint);
        _visManager->DetachFrom(iPath, _viewpoint, iInterfaces, 0);
    });
    if (_viewer) {
        _viewer->Draw();
    }
}
