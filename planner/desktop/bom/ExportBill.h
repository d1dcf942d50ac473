#pragma once

#include "planner/bill/BillFormats.h"

#include <QString>

class QWidget;

namespace planner::desktop {

/// A bill in one of the formats of the command line.
QString billText(const Bill& bill, Format format, const QString& heading);

/// Writes a bill to a file in one step, in the format of the file's ending: txt, xml, json or csv. Gives what went
/// wrong, or nothing.
QString writeBillFile(const Bill& bill, const QString& heading, const QString& path);

/// Asks for the file. Gives what went wrong, or nothing.
QString exportBillFrom(QWidget* window, const Bill& bill, const QString& heading);

} // namespace planner::desktop
