#include "QORPlatform/visualization/QORViewpointEditor.h"

QORViewpointEditor::~QORViewpointEditor() = default;

QOR2DPickViewpointEditor::QOR2DPickViewpointEditor(const QORString& iName, QOR2DViewpoint* iViewpoint, int iMode)
    : QORViewpointEditor(iName, iViewpoint), _mode(iMode) {}

QOR2DPickViewpointEditor::~QOR2DPickViewpointEditor() = default;
