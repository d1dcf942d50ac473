#include "QORPlatform/navigation/QORGraphViewer.h"

#include "QORPlatform/navigation/QORNavigBox.h"

void QORGraphViewer::setAnchoredViewpoint(int iAnchored) {
    _anchored = iAnchored != 0;
    _box.SettingsChanged();
}
