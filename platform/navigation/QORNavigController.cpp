#include "QORPlatform/navigation/QORNavigController.h"

#include "QORPlatform/navigation/QORNavigBox.h"

void QORNavigController::SetDepth(int iDepth) {
    _depth = iDepth;
    _box.SettingsChanged();
}

void QORNavigController::SetNoDuplicate() {
    _noDuplicate = true;
    _box.SettingsChanged();
}

void QORNavigController::SetExtensionMode(int iMode) {
    _extensionMode = iMode;
    _box.SettingsChanged();
}
