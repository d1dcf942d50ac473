// The window of a bill over a toolkit of one's own: it opens on a process, the process changes and says so, and the
// tree follows.
//
// For that the window needs the current editor, whose document leads to the root of the process, and the root's
// publisher.

#include "Line.h"
#include "TextToolkit.h"

#include <QORPlatform/dialog/QORDialogLoop.h>
#include <QORPlatform/frame/QORInit.h>
#include <QORPlatform/framework/QORMetaClass.h>
#include <QORPlatform/notification/QORSPPActivityNotification.h>
#include <VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h>
#include <VXMBomInfrastructure/model/QORISPPActivityModificationEvents.h>
#include <VXMBomInfrastructure/model/QORISPPActivityRoot.h>
#include <VXMBomInfrastructure/model/QORISPPProcessContainer.h>

#include <string_view>

namespace {

/// The root of a process, which publishes the changes.
class Process : public line::Step {
public:
    using Step::Step;
    QORStatus QueryInterface(const QORInterfaceID& id, void** found) override {
        const QORStatus status = QORAnswer(id, found, root_, events_);
        return status < 0 ? Step::QueryInterface(id, found) : status;
    }
    QOREventSubscriber* GetEventPublisher() { return &publisher_; }

    /// What a step lists is another than before.
    void tellOfItems() {
        constexpr int itemsOfAStep = 29;
        QORSPPActivityNotificationDispatcher::Dispatch(publisher_, itemsOfAStep);
    }

private:
    QOREventSubscriber publisher_;
    QORISPPActivityRootTie<Process> root_{this};
    QORISPPActivityModificationEventsTie<Process> events_{this};
};

/// A document leads to the processes in it. Its class is called "QORProcess", by which the window knows it.
class Document : public QORBaseUnknown {
public:
    explicit Document(Process& process) : process_(process) {}
    static QORMetaClass* ClassMeta() { return QORRegisterClass<Document>("QORProcess", "example"); }
    QORMetaClass* GetMetaObject() const override { return ClassMeta(); }
    QORStatus QueryInterface(const QORInterfaceID& id, void** found) override {
        return QORAnswer(id, found, init_, processes_);
    }

    /// The document is the container of its processes as well. The caller gets a reference.
    QORBaseUnknown* GetRootContainer(const char* interfaceName) {
        if (std::string_view(interfaceName) != QORISPPProcessContainer::ClassName()) {
            return nullptr;
        }
        AddRef();
        return this;
    }
    QORListValQORBaseUnknown_var* GetAllProcess() {
        auto* const processes = new QORListValQORBaseUnknown_var();
        processes->Append(QORBaseUnknown_var(&process_));
        return processes;
    }

private:
    Process& process_;
    QORInitTie<Document> init_{this};
    QORISPPProcessContainerTie<Document> processes_{this};
};

} // namespace

int main() {
    line::Part panel("Outer panel");
    line::Part hinge("Hinge");
    line::Step load("Load");
    line::Step weld("Weld");
    load.comingIn = {&panel};
    Process process("Door line");
    process.append(load);
    process.append(weld);
    Document document(process);

    TextToolkit toolkit;
    QORFrmEditor editor(&document);
    QORFrmEditor::SetCurrentEditor(&editor);
    QORBaseUnknown_var root(&process);
    auto* const window = new VXMFabBomViewer("Bill", &editor, root, VXMFabBomViewer::kTreeOnly);
    toolkit.paint();

    weld.comingIn.push_back(&hinge);
    process.tellOfItems();
    toolkit.paint();

    window->Release(); // the maker's reference; a window that a person has closed lets it go itself
    QORDialogLoop::Get().Run();
}
