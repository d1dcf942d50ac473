#include "QORPlatform/frame/QORFrmEditor.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORFrmEditor::ClassMeta();

QORFrmEditor* currentEditor = nullptr;

} // namespace

QORFrmEditor::QORFrmEditor(QORBaseUnknown* iDocument, Selection iSelection) : _document(iDocument) {
    if (iSelection == WithSelection) {
        _hso = QORVar<QORXSO>::Adopt(new QORXSO());
        _pso = QORVar<QORXSO>::Adopt(new QORXSO());
    }
}

QORFrmEditor::~QORFrmEditor() {
    if (currentEditor == this) {
        currentEditor = nullptr;
    }
}

QORMetaClass* QORFrmEditor::ClassMeta() {
    static auto* const meta = new QORMetaClass("QORFrmEditor", Implementation, QORMetaClass::OfBaseUnknown(), "QORNull",
                                               "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QORFrmEditor::GetMetaObject() const {
    return ClassMeta();
}

QORFrmEditor* QORFrmEditor::GetCurrentEditor() {
    return currentEditor;
}

void QORFrmEditor::SetCurrentEditor(QORFrmEditor* iEditor) {
    currentEditor = iEditor;
}
