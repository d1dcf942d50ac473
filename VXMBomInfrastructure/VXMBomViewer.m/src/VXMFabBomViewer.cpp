// The window from its making to its end, and its title.

#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/framework/QORProcessServices.h"
#include "QORPlatform/navigation/QORINavigateObjectPPR.h"
#include "QORPlatform/navigation/QORNavigController.h"
#include "QORPlatform/visualization/QORViewer.h"
#include "QORPlatform/visualization/QORVisManager.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMTraceMarks.h"
#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"
#include "VXMBomInfrastructure/process/VXMProcessBomGenerator.h"
#include "VXMBomInfrastructure/resource/VXMResourceBomGenerator.h"

#include <algorithm>

namespace {

constexpr const char* kSource = "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer";
constexpr int kWidth = 150;
constexpr int kHeight = 200;
constexpr int kPixelsPerCharacter = 10;

/// A step of the window's end that asks the model: one that raises mustn't keep the rest from ending.
template <class Step>
void Regardless(Step iStep) {
    try {
        iStep();
    } catch (...) {
        VXMBomViewerTrace.TraPutLN("The model raised an error while a BOMViewer ended");
    }
}

} // namespace

VXMFabBomViewer::VXMFabBomViewer(const QORString& iName, QORFrmEditor* iEditor, QORBaseUnknown_var& iRoot,
                                 int iDisplayMode)
    : QORFrmWindow(iName, iEditor), _windowName(static_cast<const char*>(iName)), _iDisplayMode(iDisplayMode) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::Constructor", "<-- VXMFabBomViewer::Constructor");
    if (_iDisplayMode < kTreeOnly || _iDisplayMode > kTreeAndItems) {
        QORFatalError("AssertionFailed:0 < _iDisplayMode && 4 > _iDisplayMode", kSource);
    }
    _windowFrame = GetViewerFrame();
    if (!_windowFrame) {
        QORFatalError("AssertionFailed:NULL != _windowFrame", kSource);
    }
    MakeViewer();
    MakeGenerator(iRoot);
    const QORINavigateObjectPPR_var treeRoot(_generator ? MakeTreeObject(_generator->GetBom(0)) : nullptr);
    _navigBox = VXMFabBomViewer::CreateNavigBox(_viewer, iEditor, treeRoot, "Bom Navig", 1, kQORDepthUnlimited, kWidth,
                                                kHeight, 0);
    SetViewerSelectable(_viewer);
    if (HasItems()) {
        _visManager = QORVisManager::GetVisManager();
        _viewpoint = _viewer->GetMain3DViewpoint();
        if (!_viewpoint) {
            QORFatalError("AssertionFailed:NULL != _viewpoint", kSource);
        }
        SetViewpoint();
        MBOMItems3DView();
    }
    _windowFrame->Attach4Sides(_viewer);
    AddAnalyseNotificationCB(this, GetWindSizeNotification(), &VXMFabBomViewer::OnResize, nullptr);
    AddCallBacks();
    Complete();
}

VXMFabBomViewer::~VXMFabBomViewer() {
    const VXMTraceMarks marks("--> VXMFabBomViewer Destructor ", "<-- VXMFabBomViewer Destructor ");
    Regardless([this] { RemoveBOMItems(_previewObjects); });
    RemoveAnalyseNotificationCB(this, GetWindSizeNotification(), nullptr);
    _navigBox = nullptr;
    Regardless([this] { RemoveCallbacks(); });
    if (_windowFrame) {
        _windowFrame->ResetAttachment(_viewer);
        _windowFrame = nullptr;
    }
    _viewpoint = nullptr;
    if (_viewer) {
        _viewer->RequestDelayedDestruction();
        _viewer = nullptr;
    }
    _previewObjects.RemoveAll();
    _visManager = nullptr;
    _generator.reset();
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

void VXMFabBomViewer::MakeViewer() {
    if (HasItems()) {
        _viewer = new QORNavigation3DViewer(_windowFrame, " 3D Bom Viewer", kQORViewerNavigated, kWidth, kHeight,
                                            kQORViewerScene);
    } else {
        _viewer = new QORNavigation2DViewer(_windowFrame, " Bom Viewer", kQORViewerNavigated, kWidth, kHeight,
                                            kQORViewerPlain);
    }
}

/// An object that is both an activity and a product counts as an activity; on anything else there is no generator.
void VXMFabBomViewer::MakeGenerator(const QORBaseUnknown_var& iRoot) {
    if (QORISPPActivity_var(iRoot)) {
        _generator = std::make_unique<VXMProcessBomGenerator>(iRoot);
    } else if (QORIProduct_var(iRoot)) {
        _generator = std::make_unique<VXMResourceBomGenerator>(iRoot);
    }
}

QORBaseUnknown_var VXMFabBomViewer::MakeTreeObject(const DOM_Document& iDocument) {
    DOM_Element element = iDocument.getDocumentElement();
    return QORBaseUnknown_var::Adopt(new VXMBomNavObject(element));
}

void VXMFabBomViewer::GetDisplayName(QORUnicodeString& oDisplayName) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::GetDisplayName ", "<-- VXMFabBomViewer::GetDisplayName ");
    DRECT rect;
    GetRectDimensions(rect);
    int width = rect.dx;
    if (width == 0 && _viewer) {
        float graphicWidth = 0;
        float graphicHeight = 0;
        _viewer->GetGraphicSize(graphicWidth, graphicHeight);
        width = static_cast<int>(graphicWidth);
    }
    width = std::max(width, 0);
    const int length = _windowName.GetLengthInChar();
    if (length * kPixelsPerCharacter <= width) {
        oDisplayName = _windowName;
        return;
    }
    const int shown = width / (2 * kPixelsPerCharacter); // at each end
    oDisplayName = _windowName.SubString(1, shown) + "..." + _windowName.SubString(length - shown + 1, shown);
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
