#include "visualization/QORViewpointEditor.h"

QORViewpointEditor::~QORViewpointEditor() = default;
