#include "QORPlatform/toolkit/QORToolkit.h"

#include "QORPlatform/frame/QORFrmWindow.h"
#include "QORPlatform/navigation/QORNavigBox.h"

void QORSetToolkit(QORToolkit* iToolkit) {
    QORFrmWindow::SetToolkit(iToolkit);
    QORViewer::SetToolkit(iToolkit);
    QORNavigBox::SetToolkit(iToolkit);
}
