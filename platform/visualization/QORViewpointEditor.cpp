#include "QORPlatform/visualization/QORViewpointEditor.h"

QORViewpointEditor::~QORViewpointEditor() = default;
