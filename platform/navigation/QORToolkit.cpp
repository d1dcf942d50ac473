#include "navigation/QORToolkit.h"

#include "frame/QORFrmWindow.h"
#include "navigation/QORNavigBox.h"

void QORSetToolkit(QORToolkit* iToolkit) {
    QORFrmWindow::SetToolkit(iToolkit);
    QORViewer::SetToolkit(iToolkit);
    QORNavigBox::SetToolkit(iToolkit);
}
