#include "planner/desktop/settings/Preferences.h"

#include "planner/model/FastenerSettings.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>

namespace planner::desktop {

namespace {

constexpr const char* kAppearanceKey = "appearance";
constexpr const char* kModeKey = "billMode";
constexpr int kBillAndItems = 3;

QString keyOf(const char* setting) {
    return QString("fasteners/") + setting;
}

QPalette darkPalette() {
    const QColor window(0x2b, 0x2e, 0x33);
    const QColor base(0x21, 0x24, 0x28);
    const QColor text(0xe4, 0xe6, 0xe8);
    const QColor faint(0x8b, 0x92, 0x9a);
    QPalette palette(text, QColor(0x3a, 0x3e, 0x44), QColor(0x50, 0x55, 0x5c), QColor(0x18, 0x1a, 0x1d),
                     QColor(0x34, 0x38, 0x3d), text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, QColor(0x27, 0x2a, 0x2f));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::ToolTipBase, QColor(0x3d, 0x43, 0x4a));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Link, QColor(0x6a, 0xb0, 0xf3));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

QPalette lightPalette() {
    const QColor text(0x20, 0x24, 0x28);
    const QColor faint(0x76, 0x7d, 0x85);
    QPalette palette(text, QColor(0xf0, 0xf1, 0xf3), Qt::white, QColor(0xb4, 0xb9, 0xbf), QColor(0xd8, 0xdb, 0xdf),
                     text, Qt::white, Qt::white, QColor(0xf0, 0xf1, 0xf3));
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf8, 0xf9));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x7b, 0xc9));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::ToolTipBase, QColor(0xfd, 0xf6, 0xd8));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Link, QColor(0x1f, 0x66, 0xb0));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

} // namespace

FastenerChoice readFasteners() {
    const QSettings settings;
    FastenerChoice choice;
    for (std::size_t type = 0; type < VXMFastenerTypes.size(); ++type) {
        choice.shown[type] = settings.value(keyOf(VXMFastenerTypes[type].setting), true).toBool();
    }
    choice.assignedOnly = settings.value(keyOf(VXMAssignedFastenersOnlySetting), true).toBool();
    return choice;
}

void keepFasteners(const FastenerChoice& choice) {
    QSettings settings;
    for (std::size_t type = 0; type < VXMFastenerTypes.size(); ++type) {
        settings.setValue(keyOf(VXMFastenerTypes[type].setting), choice.shown[type]);
    }
    settings.setValue(keyOf(VXMAssignedFastenersOnlySetting), choice.assignedOnly);
}

void applyFasteners(const FastenerChoice& choice) {
    for (std::size_t type = 0; type < VXMFastenerTypes.size(); ++type) {
        FastenerSettings::store().Set(VXMFastenerTypes[type].setting, choice.shown[type] ? 1 : 0);
    }
    FastenerSettings::store().Set(VXMAssignedFastenersOnlySetting, choice.assignedOnly ? 1 : 0);
}

Appearance readAppearance() {
    return static_cast<Appearance>(QSettings().value(kAppearanceKey, 0).toInt());
}

void keepAppearance(Appearance appearance) {
    QSettings().setValue(kAppearanceKey, static_cast<int>(appearance));
}

void applyAppearance(Appearance appearance) {
    switch (appearance) {
    case Appearance::Light:
        return QApplication::setPalette(lightPalette());
    case Appearance::Dark:
        return QApplication::setPalette(darkPalette());
    default:
        QApplication::setPalette(QPalette());
    }
}

int readBillMode() {
    return QSettings().value(kModeKey, kBillAndItems).toInt();
}

void keepBillMode(int mode) {
    QSettings().setValue(kModeKey, mode);
}

} // namespace planner::desktop
