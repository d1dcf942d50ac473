// The tree box of the window.

#include "QORPlatform/navigation/QORINavigateObject.h"
#include "QORPlatform/navigation/QORNavigBox.h"
#include "QORPlatform/navigation/QORTvwTreeSettingCtrl.h"
#include "QORPlatform/visualization/QORViewpoint.h"
#include "QORPlatform/visualization/QORViewpointEditor.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewerState.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"

namespace {

/// Gives the viewer a viewpoint for the graph, with an editor to pick in it. The viewer takes both over.
void AddGraphViewpoint(QORViewer& ioViewer) {
    auto* const viewpoint = new QOR2DViewpoint();
    if (ioViewer.AddViewpoint(viewpoint, kQORPlacementInFront) < 0) {
        viewpoint->Release();
        return;
    }
    auto* const editor = new QOR2DPickViewpointEditor("GraphViewpointEditor", viewpoint, kQORPickOne);
    if (ioViewer.SetViewpointEditor(viewpoint, editor) < 0) {
        editor->Release();
    }
}

/// Settings of the navigation and of the tree; false when the tree settings can't be had. A box without controller
/// takes none of them.
bool ApplySettings(QORNavigBox& ioBox, int iAllowDuplicates, int iDepth, int iExtensionMode) {
    QORNavigController* const controller = ioBox.GetController();
    if (!controller) {
        return true;
    }
    controller->SetDepth(iDepth);
    if (iAllowDuplicates == 0) {
        controller->SetNoDuplicate();
    }
    if (iExtensionMode != 0) {
        controller->SetExtensionMode(iExtensionMode);
    }
    void* found = nullptr;
    const QORStatus status = GetQORTvwTreeSettingCtrl(IID_QORITvwTreeSettingAtt, &found);
    const auto settings = QORITvwTreeSettingAtt_var::Adopt(static_cast<QORITvwTreeSettingAtt*>(found));
    if (status < 0) {
        return false;
    }
    if (settings) {
        settings->SetTreeFlag(kQORTreeLines);
    }
    return true;
}

} // namespace

QORNavigBox* VXMFabBomViewer::CreateNavigBox(QORViewer* iViewer, QORFrmEditor* iEditor, QORBaseUnknown_var iRoot,
                                             const char* iName, int iAllowDuplicates, int iDepth, int iWidth,
                                             int iHeight, int iExtensionMode) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::CreateNavigBox", "<-- VXMFabBomViewer::CreateNavigBox");
    if (iViewer) {
        AddGraphViewpoint(*iViewer);
    }
    auto* const frame = new QORDlgFrame(GetViewerFrame(), "FrmWindowTag", kQORFrameTag);
    auto* const box =
        new QORNavigBox(frame, iName, iEditor, kQORGraphTree, "Bom ID", iWidth, iHeight, iViewer, nullptr);
    frame->Attach4Sides(box->GetBoxFrame());
    if (!iRoot || !QORINavigateObject_var(iRoot)) {
        return box;
    }
    if (!ApplySettings(*box, iAllowDuplicates, iDepth, iExtensionMode)) {
        return nullptr;
    }
    if (_state->HasTree()) {
        box->AddRoot(iRoot);
    }
    if (QORGraphViewer* const graph = box->GetGraphViewer()) {
        graph->setAnchoredViewpoint(1);
    }
    return box;
}
