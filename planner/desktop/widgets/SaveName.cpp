#include "planner/desktop/widgets/SaveName.h"

#include <QFileInfo>
#include <QMessageBox>

namespace planner::desktop {

QString withEnding(QWidget* window, const QString& path, const QString& ending) {
    if (path.isEmpty() || QFileInfo(path).fileName().contains('.')) {
        return path;
    }
    QString completed = path + '.' + ending;
    if (!QFileInfo::exists(completed)) {
        return completed;
    }
    const auto answer =
        QMessageBox::question(window, "Replace the file?", completed + " exists already. Do you want to replace it?");
    return answer == QMessageBox::Yes ? completed : QString();
}

} // namespace planner::desktop
