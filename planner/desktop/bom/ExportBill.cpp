#include "planner/desktop/bom/ExportBill.h"

#include "planner/desktop/widgets/SaveName.h"

#include "planner/file/FileReplacement.h"
#include "planner/sheet/BillSheet.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace planner::desktop {

namespace {

struct Ending {
    const char* ending;
    const char* filter;
    std::optional<Format> format; ///< none for a spreadsheet
};
constexpr std::array<Ending, 5> kEndings{{{"txt", "Text for people (*.txt)", Format::Tree},
                                          {"csv", "Table (*.csv)", Format::Csv},
                                          {"json", "JSON (*.json)", Format::Json},
                                          {"xml", "XML (*.xml)", Format::Xml},
                                          {"xlsx", "Spreadsheet (*.xlsx)", std::nullopt}}};

const Ending* endingOf(const QString& path) {
    const auto* const found = std::find_if(kEndings.begin(), kEndings.end(), [&](const Ending& each) {
        return QFileInfo(path).suffix().compare(QLatin1String(each.ending), Qt::CaseInsensitive) == 0;
    });
    return found == kEndings.end() ? nullptr : found;
}

/// Why there can't be a spreadsheet of so many rows, if so.
std::optional<std::string> complaintOnSheet(std::size_t rows) {
    return Workbook::complaintOn(rows, "elements");
}

/// The endings that there can be files of here.
std::vector<const Ending*> endingsHere() {
    std::vector<const Ending*> endings;
    for (const Ending& each : kEndings) {
        if (each.format || !complaintOnSheet(0)) {
            endings.push_back(&each);
        }
    }
    return endings;
}

std::optional<std::string> writeContent(FileReplacement& file, const Ending& ending, const Bill& bill,
                                        const std::string& heading) {
    if (ending.format) {
        TextSink sink(file.descriptor());
        writeBill(bill, *ending.format, heading, sink);
        return file.commit(sink.finish());
    }
    Workbook workbook(file.writtenPath());
    addBillSheet(workbook, bill, heading);
    const auto wrong = workbook.finish();
    return wrong ? wrong : file.commit(0);
}

} // namespace

QString billText(const Bill& bill, Format format, const QString& heading) {
    std::string text;
    TextSink sink(text);
    writeBill(bill, format, heading.toStdString(), sink);
    sink.finish();
    return QString::fromStdString(text);
}

QString writeBillFile(const Bill& bill, const QString& heading, const QString& path) {
    const Ending* const ending = endingOf(path);
    if (!ending) {
        return path + ": expected a name that ends in .txt, .csv, .json, .xml or .xlsx";
    }
    if (const auto complaint = ending->format ? std::nullopt : complaintOnSheet(bill.size())) {
        return path + ": " + QString::fromStdString(*complaint);
    }
    FileReplacement file(path.toStdString());
    auto error = file.error();
    if (!error) {
        error = writeContent(file, *ending, bill, heading.toStdString());
    }
    return error ? path + ' ' + QString::fromStdString(*error) : QString();
}

QString exportBillFrom(QWidget* window, const Bill& bill, const QString& heading) {
    QStringList filters;
    const std::vector<const Ending*> endings = endingsHere();
    for (const Ending* const each : endings) {
        filters << each->filter;
    }
    QString filter;
    const QString proposed = QString(heading).replace('/', '-') + ".csv";
    const QString chosen =
        QFileDialog::getSaveFileName(window, "Export the bill", proposed, filters.join(";;"), &filter);
    const auto at = static_cast<std::size_t>(std::max<qsizetype>(filters.indexOf(filter), 0));
    const QString path = withEnding(window, chosen, endings[at]->ending);
    return path.isEmpty() ? QString() : writeBillFile(bill, heading, path);
}

} // namespace planner::desktop
