#include "planner/desktop/bom/ExportBill.h"

#include "planner/file/FileReplacement.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QTemporaryFile>

#include <array>
#include <optional>

namespace planner::desktop {

namespace {

struct Ending {
    const char* ending;
    const char* filter;
    Format format;
};
constexpr std::array<Ending, 4> kEndings{{{"txt", "Text for people (*.txt)", Format::Tree},
                                          {"csv", "Table (*.csv)", Format::Csv},
                                          {"json", "JSON (*.json)", Format::Json},
                                          {"xml", "XML (*.xml)", Format::Xml}}};

std::optional<Format> formatOf(const QString& path) {
    for (const Ending& each : kEndings) {
        if (QFileInfo(path).suffix().compare(QLatin1String(each.ending), Qt::CaseInsensitive) == 0) {
            return each.format;
        }
    }
    return std::nullopt;
}

} // namespace

QString billText(const Bill& bill, Format format, const QString& heading) {
    QTemporaryFile file; // the formats are written to descriptors
    if (!file.open()) {
        return {};
    }
    TextSink sink(file.handle());
    writeBill(bill, format, heading.toStdString(), sink);
    sink.finish();
    file.seek(0);
    return QString::fromUtf8(file.readAll());
}

QString writeBillFile(const Bill& bill, const QString& heading, const QString& path) {
    const auto format = formatOf(path);
    if (!format) {
        return path + ": expected a name that ends in .txt, .csv, .json or .xml";
    }
    FileReplacement file(path.toStdString());
    auto error = file.error();
    if (!error) {
        TextSink sink(file.descriptor());
        writeBill(bill, *format, heading.toStdString(), sink);
        error = file.commit(sink.finish());
    }
    return error ? path + ' ' + QString::fromStdString(*error) : QString();
}

QString exportBillFrom(QWidget* window, const Bill& bill, const QString& heading) {
    QStringList filters;
    for (const Ending& each : kEndings) {
        filters << each.filter;
    }
    QString filter;
    QString path =
        QFileDialog::getSaveFileName(window, "Export the bill", heading + ".csv", filters.join(";;"), &filter);
    if (path.isEmpty()) {
        return {};
    }
    if (QFileInfo(path).suffix().isEmpty()) {
        path +=
            '.' + QString(kEndings[static_cast<std::size_t>(std::max<qsizetype>(filters.indexOf(filter), 0))].ending);
    }
    return writeBillFile(bill, heading, path);
}

} // namespace planner::desktop
