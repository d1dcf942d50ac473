#include "QORPlatform/frame/QORFrmEditor.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

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
    return QORRegisterClass<QORFrmEditor>("QORFrmEditor", kQORPlatform);
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
