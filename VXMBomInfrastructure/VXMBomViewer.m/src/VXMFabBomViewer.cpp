// The window from its making to its end, and its title.

#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/framework/QORProcessServices.h"
#include "QORPlatform/navigation/QORINavigateObjectPPR.h"
#include "QORPlatform/navigation/QORNavigController.h"
#include "QORPlatform/visualization/QORViewer.h"
#include "QORPlatform/visualization/QORVisManager.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMBomRows.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewerState.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"
#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"

#include <algorithm>

namespace {

constexpr const char* kSource = "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer";
constexpr int kWidth = 150;
constexpr int kHeight = 200;
constexpr int kPixelsPerCharacter = 10;

QORViewer* MakeViewer(QORDlgFrame& ioFrame, bool iInSpace) {
    if (iInSpace) {
        return new QORNavigation3DViewer(&ioFrame, " 3D Bom Viewer", kQORViewerNavigated, kWidth, kHeight,
                                         kQORViewerScene);
    }
    return new QORNavigation2DViewer(&ioFrame, " Bom Viewer", kQORViewerNavigated, kWidth, kHeight, kQORViewerPlain);
}

/// A step of the window's end that asks the model or needs memory: one that raises mustn't keep the rest from ending.
template <class Step>
void Regardless(Step iStep) {
    try {
        iStep();
    } catch (...) {
        VXMBomViewerTrace.TraPutLN("An error was raised while a BOMViewer ended");
    }
}

} // namespace

VXMFabBomViewer::VXMFabBomViewer(const QORString& iName, QORFrmEditor* iEditor, QORBaseUnknown_var& iRoot,
                                 int iDisplayMode)
    : QORFrmWindow(iName, iEditor), _state(std::make_unique<VXMFabBomViewerState>()) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::Constructor", "<-- VXMFabBomViewer::Constructor");
    _state->_windowName = static_cast<const char*>(iName);
    _state->_iDisplayMode = iDisplayMode;
    if (iDisplayMode < kTreeOnly || iDisplayMode > kTreeAndItems) {
        QORFatalError("AssertionFailed:0 < _iDisplayMode && 4 > _iDisplayMode", kSource);
    }
    _state->_windowFrame = GetViewerFrame();
    if (!_state->_windowFrame) {
        QORFatalError("AssertionFailed:NULL != _windowFrame", kSource);
    }
    _state->_viewer = MakeViewer(*_state->_windowFrame, _state->HasItems());
    _state->_generator = VXMMakeBomGenerator(iRoot);
    const QORINavigateObjectPPR_var treeRoot(
        _state->_generator ? VXMFabBomViewerState::MakeTreeObject(_state->_generator->GetBom(0)) : nullptr);
    _state->_navigBox = VXMFabBomViewer::CreateNavigBox(_state->_viewer, iEditor, treeRoot, "Bom Navig", 1,
                                                        kQORDepthUnlimited, kWidth, kHeight, 0);
    _state->TellRows();
    SetViewerSelectable(_state->_viewer);
    if (_state->HasItems()) {
        _state->_visManager = QORVisManager::GetVisManager();
        _state->_viewpoint = _state->_viewer->GetMain3DViewpoint();
        if (!_state->_viewpoint) {
            QORFatalError("AssertionFailed:NULL != _viewpoint", kSource);
        }
        SetViewpoint();
        MBOMItems3DView();
    }
    _state->_windowFrame->Attach4Sides(_state->_viewer);
    AddAnalyseNotificationCB(this, GetWindSizeNotification(), &VXMFabBomViewer::OnResize, nullptr);
    AddCallBacks();
    Complete();
}

VXMFabBomViewer::~VXMFabBomViewer() {
    const VXMTraceMarks marks("--> VXMFabBomViewer Destructor ", "<-- VXMFabBomViewer Destructor ");
    Regardless([this] { RemoveBOMItems(_state->_previewObjects); });
    RemoveAnalyseNotificationCB(this, GetWindSizeNotification(), nullptr);
    _state->_navigBox = nullptr;
    Regardless([this] { RemoveCallbacks(); });
    if (_state->_windowFrame) {
        _state->_windowFrame->ResetAttachment(_state->_viewer);
        _state->_windowFrame = nullptr;
    }
    _state->_viewpoint = nullptr;
    if (_state->_viewer) {
        Regardless([this] { _state->_viewer->RequestDelayedDestruction(); }); // else it ends with its frame
        _state->_viewer = nullptr;
    }
    _state->_previewObjects.RemoveAll();
    _state->_visManager = nullptr;
    _state->_generator.reset();
}

QORMetaClass* VXMFabBomViewer::ClassMeta() {
    return QORRegisterClass<VXMFabBomViewer>("VXMFabBomViewer", "VXMBomInfrastructure", &QORFrmWindow::ClassMeta);
}

QORMetaClass* VXMFabBomViewer::GetMetaObject() const {
    return ClassMeta();
}

const char* VXMFabBomViewer::GetResourceFilename(int iLevel) {
    return iLevel <= 0 ? "QORFrmLayout" : QORDialog::GetResourceFilename(iLevel - 1);
}

QORBaseUnknown_var VXMFabBomViewerState::MakeTreeObject(const DOM_Document& iDocument) {
    DOM_Element element = iDocument.getDocumentElement();
    return QORBaseUnknown_var::Adopt(new VXMBomNavObject(element));
}

void VXMFabBomViewerState::TellRows() const {
    if (_navigBox && _generator && HasTree()) {
        _navigBox->SetRows(std::make_shared<VXMBomRows>(_generator->GetBom(0), _generator->GetPreviewObjects()));
    }
}

VXMBomGenerator* VXMFabBomViewer::GetGenerator() const {
    return _state->_generator.get();
}

QORNavigBox* VXMFabBomViewer::GetNavigBox() const {
    return _state->_navigBox;
}

bool VXMFabBomViewer::IsOutOfDate() const {
    return _state->_isOutOfDate;
}

void VXMFabBomViewer::GetDisplayName(QORUnicodeString& oDisplayName) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::GetDisplayName ", "<-- VXMFabBomViewer::GetDisplayName ");
    DRECT rect;
    GetRectDimensions(rect);
    int width = rect.dx;
    if (width == 0 && _state->_viewer) {
        float graphicWidth = 0;
        float graphicHeight = 0;
        _state->_viewer->GetGraphicSize(graphicWidth, graphicHeight);
        width = static_cast<int>(graphicWidth);
    }
    width = std::max(width, 0);
    const int length = _state->_windowName.GetLengthInChar();
    if (length * kPixelsPerCharacter <= width) {
        oDisplayName = _state->_windowName;
        return;
    }
    const int shown = width / (2 * kPixelsPerCharacter); // at each end
    oDisplayName =
        _state->_windowName.SubString(1, shown) + "..." + _state->_windowName.SubString(length - shown + 1, shown);
}

void VXMFabBomViewer::OnResize(QORCommand*, QORNotification*, void*) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::OnResize ", "<-- VXMFabBomViewer::OnResize ");
    QORUnicodeString title;
    GetDisplayName(title);
    SetBaseName(title);
}

void VXMFabBomViewer::SetViewpoint() {
    VXMBomViewerTrace.TraPutLN("--> VXMFabBomViewer::SetViewpoint ");
}

void VXMFabBomViewer::ViewerIsDeleted(QORCommand*, QORNotification*, void*) {}
