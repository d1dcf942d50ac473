#include "planner/desktop/settings/FastenerDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace planner::desktop {

FastenerDialog::FastenerDialog(const FastenerChoice& choice, QWidget* parent)
    : QDialog(parent), assignedOnly_(new QCheckBox("Only fasteners that count as &assigned", this)) {
    constexpr int kColumns = 2;
    setWindowTitle("Fasteners in Bills");
    auto* const group = new QGroupBox("Types shown", this);
    auto* const grid = new QGridLayout(group);
    for (std::size_t type = 0; type < types_.size(); ++type) {
        types_[type] = new QCheckBox(VXMFastenerTypes[type].name, group);
        types_[type]->setObjectName(VXMFastenerTypes[type].setting);
        types_[type]->setChecked(choice.shown[type]);
        const int rows = static_cast<int>(types_.size()) / kColumns;
        grid->addWidget(types_[type], static_cast<int>(type) % rows, static_cast<int>(type) / rows);
    }
    assignedOnly_->setObjectName(VXMAssignedFastenersOnlySetting);
    assignedOnly_->setChecked(choice.assignedOnly);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons->addButton("A&ll", QDialogButtonBox::ResetRole), &QPushButton::clicked, this,
            [this] { checkAll(true); });
    connect(buttons->addButton("&None", QDialogButtonBox::ResetRole), &QPushButton::clicked, this,
            [this] { checkAll(false); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(group);
    layout->addWidget(assignedOnly_);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void FastenerDialog::checkAll(bool on) {
    for (QCheckBox* const type : types_) {
        type->setChecked(on);
    }
}

FastenerChoice FastenerDialog::choice() const {
    FastenerChoice choice;
    for (std::size_t type = 0; type < types_.size(); ++type) {
        choice.shown[type] = types_[type]->isChecked();
    }
    choice.assignedOnly = assignedOnly_->isChecked();
    return choice;
}

} // namespace planner::desktop
