// How the window follows the plan: it subscribes to the changes of the document's root activity, builds its BOM anew
// when a change concerns it, and compares the objects shown with those of the BOM after every change.

#include "QORPlatform/frame/QORInit.h"
#include "QORPlatform/navigation/QORNavigBox.h"
#include "QORPlatform/notification/QORSPPActivityNotification.h"
#include "QORPlatform/toolkit/QORProgress.h"
#include "QORPlatform/visualization/QORIRedrawEvent.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewerState.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/model/QORISPPActivityModificationEvents.h"
#include "VXMBomInfrastructure/model/QORISPPActivityRoot.h"
#include "VXMBomInfrastructure/model/QORISPPControlFlow.h"
#include "VXMBomInfrastructure/model/QORISPPProcessContainer.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"
#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"

#include <algorithm>
#include <array>
#include <exception>
#include <unordered_set>
#include <utility>

namespace {

/// Kinds of change that can change a BOM.
constexpr std::array kKindsOfRebuild{3, 17, 18, 27, 29, 39};

bool Rebuilds(int iKind) {
    return std::find(kKindsOfRebuild.begin(), kKindsOfRebuild.end(), iKind) != kKindsOfRebuild.end();
}

/// Whether a change can change the bill that a window shows. What can't be found out may.
bool Concerns(const QORSPPActivityNotification& iChange, VXMFabBomViewerState& ioState) {
    if (!Rebuilds(iChange.GetNotificationKind())) {
        return false;
    }
    const QORListValQORBaseUnknown_var& changed = iChange.GetChangedObjects();
    if (changed.Size() == 0 || !ioState._generator || ioState._isRebuilding || ioState._isOutOfDate) {
        return true;
    }
    try {
        return std::any_of(changed.begin(), changed.end(), [&ioState](const QORBaseUnknown_var& iObject) {
            return ioState._generator->DependsOnListsOf(iObject) == 1;
        });
    } catch (...) {
        return true;
    }
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

namespace {

/// The publisher of the root activity that is found now, a null handle where there is none.
QORVar<QOREventSubscriber> FindPublisher(VXMFabBomViewer& ioWindow) {
    QORISPPActivity* found = nullptr;
    ioWindow.GetRootActivity(&found);
    const auto activity = QORISPPActivity_var::Adopt(found);
    const QORISPPActivityModificationEvents_var events(activity);
    return events ? QORVar<QOREventSubscriber>(events->GetEventPublisher()) : QORVar<QOREventSubscriber>();
}

/// Runs a step; keeps what it raises, unless one before it raised.
template <class Step>
void Attempt(Step iStep, std::exception_ptr& ioRaised) {
    try {
        iStep();
    } catch (...) {
        ioRaised = ioRaised ? ioRaised : std::current_exception();
    }
}

/// Computes the bill; false when a person cancels that, which is no error.
bool Compute(VXMBomGenerator& ioGenerator) {
    try {
        ioGenerator.GetBom(1);
        return true;
    } catch (const QORCancelled&) {
        VXMBomViewerTrace.TraPutLN("A rebuild of a BOMViewer was cancelled");
        return false;
    }
}

/// Builds the BOM anew and gives the box its new root; the root of the last BOM again where that raises an error, which
/// then comes out.
void Rebuild(VXMFabBomViewerState& ioState) {
    QORNavigBox& box = *ioState._navigBox;
    bool isComputed = false;
    std::exception_ptr raised;
    ioState._isOutOfDate = true;
    box.BeginRefill();
    box.RemoveAllRoots();
    ioState._isRebuilding = true;
    Attempt([&] { isComputed = Compute(*ioState._generator); }, raised);
    ioState._isRebuilding = false;
    if (ioState.HasTree()) {
        Attempt(
            [&] {
                ioState.TellRows();
                box.AddRoot(VXMFabBomViewerState::MakeTreeObject(ioState._generator->GetBom(0)));
            },
            raised);
    }
    Attempt([&] { box.EndRefill(); }, raised);
    if (raised) {
        std::rethrow_exception(raised);
    }
    ioState._isOutOfDate = !isComputed;
}

/// Brings what is shown in space in line with the objects of the BOM, when their number has changed.
void CompareItems(VXMFabBomViewer& ioWindow, VXMFabBomViewerState& ioState) {
    if (!ioState._generator) {
        return;
    }
    const QORListValQORBaseUnknown_var objects = ioState._generator->GetPreviewObjects();
    if (objects.Size() == ioState._previewObjects.Size()) {
        return;
    }
    const QORListValQORBaseUnknown_var gone = Missing(ioState._previewObjects, objects);
    if (gone.Size() > 0) {
        ioWindow.RemoveBOMItems(gone);
    }
    if (objects.Size() > 0) {
        ioWindow.Visualize(objects);
    }
    ioState._previewObjects = objects;
}

/// Follows changes of the plan, of which one at least asks for a rebuild or none.
void Follow(VXMFabBomViewer& ioWindow, VXMFabBomViewerState& ioState, bool iRebuild) {
    if (ioWindow.IsClosed()) {
        return;
    }
    const QORVar<QORFrmWindow> self(&ioWindow); // see UpdateBom
    if (iRebuild) {
        ioWindow.UpdateBom();
    }
    CompareItems(ioWindow, ioState);
}

/// Follows all changes of a group when it ends.
void FollowAfterGroup(VXMFabBomViewer& ioWindow, VXMFabBomViewerState& ioState, bool iRebuild) {
    const bool isFirst = !ioState._afterGroup.compare;
    ioState._afterGroup.Add(iRebuild);
    if (isFirst) {
        ioState._publisher->CallAfterGroup(ioWindow, [&ioWindow, &ioState] {
            Follow(ioWindow, ioState, std::exchange(ioState._afterGroup, {}).rebuild);
        });
    }
}

} // namespace

void VXMFabBomViewer::AddCallBacks() {
    const VXMTraceMarks marks("--> VXMFabBomViewer::AddCallBacks", "<-- VXMFabBomViewer::AddCallBacks");
    _state->_publisher = FindPublisher(*this);
    if (_state->_publisher) {
        _state->_callbackHandle = AddCallback(this, _state->_publisher.Get(),
                                              QORSPPActivityNotificationDispatcher::DISPATCHER_SPP_VIEWS_CHANGE(),
                                              &VXMFabBomViewer::OnActivityCallback, nullptr);
    }
}

unsigned char VXMFabBomViewer::RemoveCallbacks() {
    const VXMTraceMarks marks("--> VXMFabBomViewer::RemoveBacks", "<-- VXMFabBomViewer::RemoveBacks");
    // Another document may be current by now, so the publisher of the subscription itself goes first.
    const QORVar<QOREventSubscriber> publisher =
        _state->_publisher ? std::move(_state->_publisher) : FindPublisher(*this);
    if (publisher && _state->_callbackHandle != kQORNoCallback) {
        publisher->RemoveCallback(publisher.Get(), _state->_callbackHandle);
    }
    _state->_callbackHandle = kQORNoCallback;
    return 1;
}

void VXMFabBomViewer::OnActivityCallback(const char*, void*, QORNotification* iNotification, void*, long) {
    const VXMTraceMarks marks("--> VXMFabBomViewer::OnActivityCallback", "<-- VXMFabBomViewer::OnActivityCallback");
    if (!iNotification || iNotification->IsAKindOf("QORSPPActivityNotification") == 0 || !iNotification->GetImpl(0)) {
        return;
    }
    const auto* const change = static_cast<QORSPPActivityNotification*>(iNotification->GetImpl(0));
    const bool rebuild = Concerns(*change, *_state);
    if (_state->_isRebuilding) {
        _state->_meanwhile.Add(rebuild);
    } else if (_state->_publisher && _state->_publisher->IsInGroup()) {
        FollowAfterGroup(*this, *_state, rebuild);
    } else {
        Follow(*this, *_state, rebuild);
    }
}

void VXMFabBomViewer::UpdateBom() {
    const VXMTraceMarks marks("--> VXMFabBomViewer::UpdateBom", "<-- VXMFabBomViewer::UpdateBom");
    if (!_state->_navigBox || !_state->_generator || IsClosed()) {
        return;
    }
    if (_state->_isRebuilding) {
        _state->_meanwhile.rebuild = true;
        return;
    }
    // Whoever is told of the emptied or refilled tree may close the window: it stays until this call is over.
    const QORVar<QORFrmWindow> self(this);
    _state->_meanwhile = {};
    Rebuild(*_state);
    if (std::exchange(_state->_meanwhile.rebuild, false)) {
        Rebuild(*_state);
    }
    if (const QORIRedrawEvent_var redraw{_state->_viewer}) {
        redraw->Redraw();
    }
    if (_state->_viewer) {
        _state->_viewer->Draw();
    }
    if (_state->_meanwhile.compare) {
        CompareItems(*this, *_state);
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
