#include "QORPlatform/navigation/QORNodeExtension.h"

#include "QORPlatform/navigation/QORIGraphNode.h"
#include "QORPlatform/navigation/QORNavigBox.h"
#include "QORPlatform/navigation/QORNavigNode.h"

QORNodeExtension::QORNodeExtension() = default;

QORNodeExtension::~QORNodeExtension() = default;

QORNavigInstance* QORNodeExtension::GetAssociatedInstance() {
    const auto* const node = dynamic_cast<QORNavigNode*>(GetImpl(0));
    QORNavigInstance* const instance = node ? node->GetInstance() : nullptr;
    return instance && instance->GetBox() ? instance : nullptr;
}

void QORNodeExtension::ProcessAfterSelect() {
    Update();
}

void QORNodeExtension::ProcessAfterExtSelect() {
    Update();
}

void QORNodeExtension::ProcessAfterAction() {
    QORNavigInstance* const instance = GetAssociatedInstance();
    if (!instance) {
        return;
    }
    if (instance->IsExpanded()) {
        instance->Collapse();
    } else {
        instance->Expand();
    }
}

void QORNodeExtension::ProcessAfterExpand() {
    Update();
}

void QORNodeExtension::ProcessAfterMethod() {
    Update();
}

QORBaseUnknown* QORNodeExtension::GetFatherContainer() {
    const QORNavigInstance* const instance = GetAssociatedInstance();
    const QORNavigInstance* const father = instance ? instance->GetParent() : nullptr;
    return father ? father->GetTreeObject() : nullptr;
}

void QORNodeExtension::Update() {
    if (QORNavigInstance* const instance = GetAssociatedInstance()) {
        instance->Update();
    }
}

QORNavigController* QORNodeExtension::GetController() {
    const QORNavigInstance* const instance = GetAssociatedInstance();
    return instance ? instance->GetBox()->GetController() : nullptr;
}

void QORNodeExtension::Remove() {
    if (QORNavigInstance* const instance = GetAssociatedInstance()) {
        instance->Remove();
    }
}

void QORNodeExtension::SetMarked(int iOn) {
    if (QORNavigInstance* const instance = GetAssociatedInstance()) {
        instance->SetMarked(iOn != 0);
    }
}

int QORNodeExtension::GetMarked() {
    const QORNavigInstance* const instance = GetAssociatedInstance();
    return instance && instance->IsMarked() ? 1 : 0;
}

void QORNodeExtension::UpdateElem(QORNavigInstance*) {
    if (const QORIGraphNode_var node(GetImpl(0)); node) {
        node->SetNodeOption(kQORNodePlain);
        node->SetIconName("");
    }
}

void QORNodeExtension::ModifyShortHelp(QORUnicodeString& ioHelp) {
    const QORIGraphNode_var node(GetImpl(0));
    if (node && ioHelp.GetLengthInChar() == 0) {
        ioHelp = node->GetLabel();
    }
}

void QORNodeExtension::Select(int iOn) {
    if (QORNavigInstance* const instance = GetAssociatedInstance()) {
        instance->Select(iOn != 0);
    }
}

int QORNodeExtension::IsSelected() {
    const QORNavigInstance* const instance = GetAssociatedInstance();
    return instance && instance->IsSelected() ? 1 : 0;
}
