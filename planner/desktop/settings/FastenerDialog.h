#pragma once

#include "planner/desktop/settings/Preferences.h"

#include <QDialog>

#include <array>

class QCheckBox;

namespace planner::desktop {

/// Which fasteners bills show: a box for each of the twelve types, and one for the unassigned.
class FastenerDialog : public QDialog {
    Q_OBJECT

public:
    FastenerDialog(const FastenerChoice& choice, QWidget* parent);

    FastenerChoice choice() const;

private:
    void checkAll(bool on);

    std::array<QCheckBox*, VXMFastenerTypes.size()> types_{};
    QCheckBox* assignedOnly_;
};

} // namespace planner::desktop
