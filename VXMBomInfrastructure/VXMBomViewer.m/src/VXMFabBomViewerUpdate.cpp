// How the window follows the plan: it subscribes to the changes of the document's root activity, builds its BOM anew
// when a change concerns it, and compares the objects shown with those of the BOM after every change.

#include "QORPlatform/frame/QORInit.h"
#include "QORPlatform/navigation/QORNavigBox.h"
#include "QORPlatform/notification/QORSPPActivityNotification.h"
#include "QORPlatform/visualization/QORIRedrawEvent.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMTraceMarks.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/model/QORISPPActivityModificationEvents.h"
#include "VXMBomInfrastructure/model/QORISPPActivityRoot.h"
#include "VXMBomInfrastructure/model/QORISPPControlFlow.h"
#include "VXMBomInfrastructure/model/QORISPPProcessContainer.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"
#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace {

/// Kinds of change that can change a BOM.
constexpr std::array kKindsOfRebuild{3, 17, 18, 27, 29, 39};

bool Rebuilds(int iKind) {
    return std::find(kKindsOfRebuild.begin(), kKindsOfRebuild.end(), iKind) != kKindsOfRebuild.end();
}

/// The entries of iBefore whose object isn't in iNow, in their order.
QORListValQORBaseUnknown_var Missing(const QORListValQORBaseUnknown_var& iBefore,
                                     const QORListValQORBaseUnknown_var& iNow) {
    std::unordered_set<const QORBaseUnknown*> now;
    for (const QORBaseUnknown_var& object : iNow) {
        now.insert(object.Impl());
    }
    QORListValQORBaseUnknown_var missing;
    for (const QORBaseUnknown_var& object : iBefore) {
        if (!now.contains(object.Impl())) {
            missing.Append(object);
        }
    }
    return missing;
}

/// The first process of the current document, as its root; a null handle where there is none.
QORISPPActivityRoot_var FindProcessRoot() {
    QORFrmEditor* const editor = QORFrmEditor::GetCurrentEditor();
    QORBaseUnknown* const document = editor ? editor->GetDocument() : nullptr;
    if (!document || document->IsAKindOf("QORProcess") == 0) {
        return {};
    }
    const QORInit_var init(document);
    const auto container =
        QORBaseUnknown_var::Adopt(init ? init->GetRootContainer(QORISPPProcessContainer::ClassName()) : nullptr);
    const QORISPPProcessContainer_var processes(container);
    if (!processes) {
        return {};
    }
    const std::unique_ptr<QORListValQORBaseUnknown_var> roots(processes->GetAllProcess());
    return roots && roots->Size() > 0 ? QORISPPActivityRoot_var((*roots)[1]) : QORISPPActivityRoot_var();
}

} // namespace

void VXMFabBomViewer::GetRootActivity(QORISPPActivity** oActivity) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::GetRootActivity", "<-- VXMFabBomViewer::GetRootActivity");
    const QORISPPActivityRoot_var root = FindProcessRoot();
    void* activity = nullptr;
    if (root && root->QueryInterface(IID_QORISPPActivity, &activity) >= 0) {
        *oActivity = static_cast<QORISPPActivity*>(activity);
    }
}

/// The publisher of the root activity that is found now, a null handle where there is none.
QORVar<QOREventSubscriber> VXMFabBomViewer::FindPublisher() {
    QORISPPActivity* found = nullptr;
    GetRootActivity(&found);
    const auto activity = QORISPPActivity_var::Adopt(found);
    const QORISPPActivityModificationEvents_var events(activity);
    return events ? QORVar<QOREventSubscriber>(events->GetEventPublisher()) : QORVar<QOREventSubscriber>();
}

void VXMFabBomViewer::AddCallBacks() {
    const VXMTraceMarks marks("--> VXMFabBomViewer::AddCallBacks", "<-- VXMFabBomViewer::AddCallBacks");
    _publisher = FindPublisher();
    if (_publisher) {
        _callbackHandle =
            AddCallback(this, _publisher.Get(), QORSPPActivityNotificationDispatcher::DISPATCHER_SPP_VIEWS_CHANGE(),
                        &VXMFabBomViewer::OnActivityCallback, nullptr);
    }
}

unsigned char VXMFabBomViewer::RemoveCallbacks() {
    const VXMTraceMarks marks("--> VXMFabBomViewer::RemoveBacks", "<-- VXMFabBomViewer::RemoveBacks");
    // Another document may be current by now, so the publisher of the subscription itself goes first.
    const QORVar<QOREventSubscriber> publisher = _publisher ? std::move(_publisher) : FindPublisher();
    if (publisher && _callbackHandle != kQORNoCallback) {
        publisher->RemoveCallback(publisher.Get(), _callbackHandle);
    }
    _callbackHandle = kQORNoCallback;
    return 1;
}

void VXMFabBomViewer::OnActivityCallback(const char*, void*, QORNotification* iNotification, void*, long) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::OnActivityCallback", "<-- VXMFabBomViewer::OnActivityCallback");
    if (!iNotification || iNotification->IsAKindOf("QORSPPActivityNotification") == 0 || !iNotification->GetImpl(0)) {
        return;
    }
    const QORVar<QORFrmWindow> self(this); // see UpdateBom
    if (Rebuilds(static_cast<QORSPPActivityNotification*>(iNotification->GetImpl(0))->GetNotificationKind())) {
        UpdateBom();
    }
    if (!_generator) {
        return;
    }
    const QORListValQORBaseUnknown_var objects = _generator->GetPreviewObjects();
    if (objects.Size() == _previewObjects.Size()) {
        return;
    }
    const QORListValQORBaseUnknown_var gone = Missing(_previewObjects, objects);
    if (gone.Size() > 0) {
        RemoveBOMItems(gone);
    }
    if (objects.Size() > 0) {
        Visualize(objects);
    }
    _previewObjects = objects;
}

void VXMFabBomViewer::UpdateBom() {
    const VXMTraceMarks marks("--> VXMFabBomViewer::UpdateBom", "<-- VXMFabBomViewer::UpdateBom");
    if (!_navigBox || !_generator) {
        return;
    }
    // Whoever is told of the emptied or refilled tree may close the window: it stays until this call is over.
    const QORVar<QORFrmWindow> self(this);
    _navigBox->RemoveAllRoots();
    const DOM_Document document = _generator->GetBom(1);
    if (HasTree()) {
        _navigBox->AddRoot(MakeTreeObject(document));
    }
    if (const QORIRedrawEvent_var redraw{_viewer}) {
        redraw->Redraw();
    }
    if (_viewer) {
        _viewer->Draw();
    }
}

QORBaseUnknown* VXMFabBomViewer::IsACaseOfActivityDeleted(QORBaseUnknown* iFirst, QORBaseUnknown* iSecond) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::IsACaseOfActivityDeleted",
                              "<-- VXMFabBomViewer::IsACaseOfActivityDeleted");
    const QORISpecObject_var typed(iSecond);
    return typed && typed->IsOfType("PhysicalActivity") == 1 ? iFirst : nullptr;
}

QORBaseUnknown* VXMFabBomViewer::IsACaseOfLinkDeleted(QORBaseUnknown*, QORBaseUnknown* iSecond) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::IsACaseOfLinkDeleted", "<-- VXMFabBomViewer::IsACaseOfLinkDeleted");
    return QORISPPControlFlow_var(iSecond) ? iSecond : nullptr;
}
