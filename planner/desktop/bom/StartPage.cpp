#include "planner/desktop/bom/StartPage.h"

#include <QAction>
#include <QFont>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace planner::desktop {

StartPage::StartPage(QWidget* parent) : QWidget(parent), column_(new QVBoxLayout) {
    constexpr int kSpacing = 6;
    constexpr double kLarge = 1.5;
    auto* const title = new QLabel("What will the product look like when the plan is done?", this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * kLarge);
    title->setFont(font);
    title->setWordWrap(true);
    column_->setSpacing(kSpacing);
    column_->addWidget(title);
    column_->addSpacing(kSpacing * 2);
    auto* const middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addLayout(column_, 4);
    middle->addStretch(1);
    auto* const layout = new QVBoxLayout(this);
    layout->addStretch(1);
    layout->addLayout(middle);
    layout->addStretch(2);
}

void StartPage::offer(QAction& action, const QString& text) {
    constexpr int kIndent = 30;
    constexpr int kIcon = 20;
    auto* const button = new QToolButton(this);
    button->setDefaultAction(&action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIconSize({kIcon, kIcon});
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    auto* const note = new QLabel(text, this);
    note->setForegroundRole(QPalette::PlaceholderText);
    note->setIndent(kIndent);
    note->setWordWrap(true);
    column_->addWidget(button);
    column_->addWidget(note);
    column_->addSpacing(4);
}

} // namespace planner::desktop
